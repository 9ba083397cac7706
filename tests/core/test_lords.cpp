// The nine lords: numbers, names and colours.
#include <array>
#include <ostream>
#include <string_view>

#include <gtest/gtest.h>

#include "core/lords.h"

namespace navarun::test {
namespace {

using screen::Colour;

struct LordCase {
    int number;
    Lord lord;
    std::string_view name;
    std::string_view short_name;
    Colour back;
    Colour fore;
    friend std::ostream& operator<<(std::ostream& out, LordCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr LordCase lord_cases[] = {
    {1, Lord::Surya,   "Surya",   "Su", Colour{0x800000}, Colour{0xFFFFFF}},
    {2, Lord::Chandra, "Chandra", "Ca", Colour{0xFFFFFF}, Colour{0x000000}},
    {3, Lord::Guru,    "Guru",    "Gu", Colour{0xFFFF80}, Colour{0x000000}},
    {4, Lord::Rahu,    "Rahu",    "Ra", Colour{0xC0C0C0}, Colour{0x000000}},
    {5, Lord::Budha,   "Budha",   "Bu", Colour{0x80FF80}, Colour{0x000000}},
    {6, Lord::Shukra,  "Shukra",  "Sk", Colour{0xFFFFFF}, Colour{0x000000}},
    {7, Lord::Ketu,    "Ketu",    "Ke", Colour{0xC0C0C0}, Colour{0x000000}},
    {8, Lord::Shani,   "Shani",   "Sa", Colour{0x000000}, Colour{0xFFFFFF}},
    {9, Lord::Kuja,    "Kuja",    "Ku", Colour{0xFF8080}, Colour{0x000000}},
};
// clang-format on

class LordRows : public testing::TestWithParam<LordCase> {};
TEST_P(LordRows, HaveTheirNumber) { EXPECT_EQ(number_of(GetParam().lord), GetParam().number); }
TEST_P(LordRows, HaveTheirNames) {
    LordCase const& row = GetParam();
    EXPECT_EQ(row_of(row.lord).name, row.name);
    EXPECT_EQ(row_of(row.lord).short_name, row.short_name);
}
TEST_P(LordRows, HaveTheirColours) {
    LordCase const& row = GetParam();
    EXPECT_EQ(to_text(row_of(row.lord).back), to_text(row.back));
    EXPECT_EQ(to_text(row_of(row.lord).fore), to_text(row.fore));
}
TEST_P(LordRows, StandInTheListOfNamesInFullAndNineOnAbbreviated) {
    LordCase const& row = GetParam();
    EXPECT_EQ(noms_seigneurs.at(static_cast<std::size_t>(row.number - 1)), row.name);
    EXPECT_EQ(noms_seigneurs.at(static_cast<std::size_t>(row.number - 1 + 9)), row.short_name);
}
INSTANTIATE_TEST_SUITE_P(Lords, LordRows, testing::ValuesIn(lord_cases),
                         [](auto const& row) { return std::string{row.param.name}; });

TEST(LordNames, AreEighteen) {
    EXPECT_EQ(noms_seigneurs.size(), 18U);
    EXPECT_EQ(short_names, 9);
}

TEST(StandardColours, AreTheSixteen) {
    constexpr std::array<std::string_view, 16> colours{
        "#000000", "#000080", "#008000", "#008080", "#800000", "#800080", "#808000", "#C0C0C0",
        "#808080", "#0000FF", "#00FF00", "#00FFFF", "#FF0000", "#FF00FF", "#FFFF00", "#FFFFFF",
    };
    for (int number = 0; number < 16; ++number) {
        EXPECT_EQ(to_text(screen::standard_colour(number)),
                  colours[static_cast<std::size_t>(number)])
            << number;
    }
}

TEST(ReducedToNine, NineStandsForNothingLeft) {
    EXPECT_EQ(reduced_to_nine(0), 9);
    EXPECT_EQ(reduced_to_nine(1), 1);
    EXPECT_EQ(reduced_to_nine(8), 8);
    EXPECT_EQ(reduced_to_nine(9), 9);
    EXPECT_EQ(reduced_to_nine(10), 1);
    EXPECT_EQ(reduced_to_nine(18), 9);
    EXPECT_EQ(reduced_to_nine(45), 9);
    EXPECT_EQ(reduced_to_nine(46), 1);
    EXPECT_EQ(reduced_to_nine(103), 4);
}

}  // namespace
}  // namespace navarun::test
