// The twelve dates of a row of the grid.
#include <ostream>
#include <string_view>

#include <gtest/gtest.h>

#include "core/calendar.h"
#include "periods/row_dates.h"

namespace navarun::test {
namespace {

struct RowCase {
    char const* name;
    std::string_view first_day;
    int months;
    bool shows_29th;
    std::string_view second;
    std::string_view fifth;
    std::string_view last;
    friend std::ostream& operator<<(std::ostream& out, RowCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr RowCase row_cases[] = {
    {"months",               "17/05/1962", 1, false, "17/06/1962", "17/09/1962", "17/04/1963"},
    {"over_the_new_year",    "04/11/1987", 1, false, "04/12/1987", "04/03/1988", "04/10/1988"},
    {"steps_of_ten_months",  "17/05/1962", 10, false, "17/03/1963", "17/09/1965", "17/07/1971"},
    {"the_31st_is_clipped",  "31/10/2022", 1, false, "30/11/2022", "28/02/2023", "30/09/2023"},
    {"and_comes_back",       "31/01/2024", 2, false, "31/03/2024", "30/09/2024", "30/11/2025"},
    {"born_on_the_29th",     "28/02/2023", 1, true,  "29/03/2023", "29/06/2023", "29/01/2024"},
    {"a_february_without_it", "28/10/2022", 1, true, "29/11/2022", "28/02/2023", "29/09/2023"},
    {"a_february_with_it",   "28/10/2023", 1, true,  "29/11/2023", "29/02/2024", "29/09/2024"},
    {"beyond_four_digits",   "01/12/9999", 1, false, "01/01/0000", "01/04/0000", "01/11/0000"},
};
// clang-format on

class RowOfDates : public testing::TestWithParam<RowCase> {};
TEST_P(RowOfDates, StepsThroughTheCalendarFromItsFirstDay) {
    RowCase const& row = GetParam();
    auto const dates = row_dates(row.first_day, row.months, row.shows_29th);
    ASSERT_TRUE(dates);
    EXPECT_EQ(std::string_view{(*dates)[1]}, row.second);
    EXPECT_EQ(std::string_view{(*dates)[4]}, row.fifth);
    EXPECT_EQ(std::string_view{(*dates)[11]}, row.last);
}
INSTANTIATE_TEST_SUITE_P(Rows, RowOfDates, testing::ValuesIn(row_cases),
                         [](auto const& row) { return row.param.name; });

// One addition of the calendar holds for single dates and for rows.
TEST(RowOfDatesSweep, EachDateIsTheCalendarsOwnAddition) {
    for (Date first = *date_of(1, 1, 2023); first < *date_of(1, 1, 2025);
         first += std::chrono::days{1}) {
        auto const dates = row_dates(write_date(first), 7, false);
        ASSERT_TRUE(dates);
        for (int i = 0; i < 12; ++i) {
            ASSERT_EQ(std::string_view{(*dates)[static_cast<std::size_t>(i)]},
                      write_date(add_months(first, 7 * i)))
                << write_date(first) << " step " << i;
        }
    }
}

TEST(RowOfDates, WhatIsNoDateHasNone) {
    EXPECT_FALSE(row_dates("", 1, false));
    EXPECT_FALSE(row_dates("31/13/2020", 1, false));
}

}  // namespace
}  // namespace navarun::test
