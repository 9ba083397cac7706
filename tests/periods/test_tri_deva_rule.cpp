// The triple coincidence of the lords of period, year and months.
#include <array>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "periods/tri_deva_rule.h"

namespace navarun::test {
namespace {

using Months = std::array<std::string_view, 12>;

// The month lords from Surya on: Surya, Chandra and Guru come twice.
constexpr Months months_from_surya{"Surya", "Chandra", "Guru", "Rahu",  "Budha",   "Shukra",
                                   "Ketu",  "Shani",   "Kuja", "Surya", "Chandra", "Guru"};
constexpr Months short_months_from_surya{"Su", "Ca", "Gu", "Ra", "Bu", "Sk",
                                         "Ke", "Sa", "Ku", "Su", "Ca", "Gu"};

struct CoincidenceCase {
    char const* name;
    std::string_view period_lord;
    std::string_view year_lord;
    Months months;
    std::string_view kind;
    std::vector<int> cells;
    friend std::ostream& operator<<(std::ostream& out, CoincidenceCase const& row) {
        return out << row.name;
    }
};
// clang-format off
CoincidenceCase const coincidence_cases[] = {
    {"two_months",                      "Surya",  "Surya",  months_from_surya,       "T", {1, 10}},
    {"one_month",                       "Kuja",   "Kuja",   months_from_surya,       "T", {9}},
    {"last_cell",                       "Guru",   "Guru",   months_from_surya,       "T", {3, 12}},
    {"guru_as_the_grid_writes_him",     "Guru",   "Guru",   months_from_surya,       "T", {3, 12}},
    {"shukra_as_the_grid_writes_her",   "Shukra", "Shukra", months_from_surya,       "T", {6}},
    {"guru_in_capitals",                "GURU",   "GURU",   months_from_surya,       "C", {3, 12}},
    {"shukra_in_capitals",              "SHUKRA", "SHUKRA", months_from_surya,       "C", {6}},
    {"another_in_capitals",             "KUJA",   "KUJA",   months_from_surya,       "T", {9}},
    {"guru_in_small_letters",           "guru",   "guru",   months_from_surya,       "T", {3, 12}},
    {"any_case_of_the_year",            "Kuja",   "kUJA",   months_from_surya,       "T", {9}},
    {"any_case_of_the_months",          "kuja",   "kuja",   months_from_surya,       "T", {9}},
    {"short_names",                     "Su",     "Su",     short_months_from_surya, "T", {1, 10}},
    {"short_name_of_guru",              "Gu",     "Gu",     short_months_from_surya, "T", {3, 12}},
    {"another_lord_of_the_year",        "Surya",  "Kuja",   months_from_surya,       "",  {1, 10}},
    {"guru_capital_in_the_period_only", "GURU",   "Kuja",   months_from_surya,       "",  {3, 12}},
    {"short_against_full",              "Su",     "Surya",  months_from_surya,       "",  {}},
    {"lord_without_a_month",            "Surya",  "Surya",  short_months_from_surya, "T", {}},
    {"no_lord_of_the_year",             "Kuja",   "",       months_from_surya,       "",  {9}},
};
// clang-format on

class Coincidence : public testing::TestWithParam<CoincidenceCase> {};
TEST_P(Coincidence, HasItsKindAndItsMonths) {
    CoincidenceCase const& row = GetParam();
    TriDeva const found = find_tri_deva(row.period_lord, row.year_lord, row.months);
    EXPECT_EQ(found.kind, row.kind);
    EXPECT_EQ(found.cells, row.cells);
}
INSTANTIATE_TEST_SUITE_P(Names, Coincidence, testing::ValuesIn(coincidence_cases),
                         [](auto const& row) { return row.param.name; });

struct MarkCase {
    int cell;
    int left;
    int top;
    friend std::ostream& operator<<(std::ostream& out, MarkCase const& row) {
        return out << "cell " << row.cell;
    }
};
// clang-format off
constexpr MarkCase mark_cases[] = {
    {1,  2080, 400},
    {2,  3720, 400},
    {3,  5360, 400},
    {4,  5360, 2020},
    {5,  5360, 3620},
    {6,  5360, 5220},
    {7,  3720, 5220},
    {8,  2080, 5220},
    {9,  450,  5220},
    {10, 450,  3620},
    {11, 450,  2020},
    {12, 450,  400},
};
// clang-format on

class MarkOfCell : public testing::TestWithParam<MarkCase> {};
TEST_P(MarkOfCell, StandsInItsBox) {
    MarkPlace const& place = mark_places.at(static_cast<std::size_t>(GetParam().cell - 1));
    EXPECT_EQ(place.left, GetParam().left);
    EXPECT_EQ(place.top, GetParam().top);
}
INSTANTIATE_TEST_SUITE_P(Grid, MarkOfCell, testing::ValuesIn(mark_cases), [](auto const& row) {
    return "cell_" + std::to_string(row.param.cell);
});

}  // namespace
}  // namespace navarun::test
