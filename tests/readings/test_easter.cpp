// Easter by a second rule: Gauss's, with his two exceptions.
#include <array>
#include <chrono>

#include <gtest/gtest.h>

#include "readings/easter.h"

namespace navarun::test {
namespace {

// Days after 21 March.
int days_by_gauss(int year) {
    int const k = year / 100;
    int const p = (13 + 8 * k) / 25;
    int const q = k / 4;
    int const moon = (15 - p + k - q) % 30;
    int const sun = (4 + k - q) % 7;
    int const a = year % 19;
    int const d = (19 * a + moon) % 30;
    int const e = (2 * (year % 4) + 4 * (year % 7) + 6 * d + sun) % 7;
    if (d == 29 && e == 6) return 1 + d + e - 7;
    if (d == 28 && e == 6 && (11 * moon + 11) % 30 < 19) return 1 + d + e - 7;
    return 1 + d + e;
}

TEST(Easter, IsThatOfGaussFrom1583To2199) {
    for (int year = 1583; year <= 2199; ++year) {
        auto const found = easter_sunday(year);
        int const days = found.month == 3 ? found.day - 21 : found.day + 10;
        EXPECT_TRUE(found.month == 3 || found.month == 4) << year;
        EXPECT_EQ(days, days_by_gauss(year)) << year;
    }
}

TEST(Easter, IsASundayBetween22MarchAnd25April) {
    using namespace std::chrono;
    for (int year_number = 1583; year_number <= 2199; ++year_number) {
        auto const found = easter_sunday(year_number);
        auto const date = year{year_number} / found.month / found.day;
        ASSERT_TRUE(date.ok()) << year_number;
        EXPECT_EQ(weekday{sys_days{date}}, Sunday) << year_number;
        EXPECT_GE(sys_days{date}, sys_days{year{year_number} / 3 / 22});
        EXPECT_LE(sys_days{date}, sys_days{year{year_number} / 4 / 25});
    }
}

struct EasterCase {
    int year;
    int day;
    int month;
    friend std::ostream& operator<<(std::ostream& out, EasterCase const& row) {
        return out << row.year;
    }
};
// From church almanacs; the ends of the range and the years of Gauss's exceptions among them.
// clang-format off
constexpr EasterCase easter_cases[] = {
    {1583, 10, 4},
    {1609, 19, 4},
    {1818, 22, 3},
    {1943, 25, 4},
    {1954, 18, 4},
    {1981, 19, 4},
    {2000, 23, 4},
    {2008, 23, 3},
    {2015,  5, 4},
    {2018,  1, 4},
    {2024, 31, 3},
    {2038, 25, 4},
    {2049, 18, 4},
    {2076, 19, 4},
};
// clang-format on

class EasterOf : public testing::TestWithParam<EasterCase> {};
TEST_P(EasterOf, StandsInTheAlmanac) {
    auto const found = easter_sunday(GetParam().year);
    EXPECT_EQ(found.day, GetParam().day);
    EXPECT_EQ(found.month, GetParam().month);
}
INSTANTIATE_TEST_SUITE_P(Almanac, EasterOf, testing::ValuesIn(easter_cases),
                         [](auto const& row) { return std::to_string(row.param.year); });

}  // namespace
}  // namespace navarun::test
