// The conversion table from the Julian to the Gregorian calendar, against the day count of the
// astronomers.
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/julian_calendar.h"
#include "core/text.h"
#include "tests/core/mismatches.h"

namespace navarun::test {
namespace {

using Outcome = JulianConversion::Outcome;

struct ConvertedDate {
    char const* name;
    char const* julian;
    std::string_view gregorian;
    friend std::ostream& operator<<(std::ostream& out, ConvertedDate const& row) {
        return out << row.name;
    }
};

// The days on which the steps of the table lie: the last before and the first after 29 February
// of each century year.
// clang-format off
constexpr ConvertedDate row_borders[] = {
    {"first_row_begins",   "01/03/1000", "07/03/1000"},
    {"row_of_1000_ends",   "28/02/1100", "06/03/1100"},
    {"row_of_1100_begins", "01/03/1100", "08/03/1100"},
    {"row_of_1100_ends",   "29/02/1200", "07/03/1200"},
    {"row_of_1200_begins", "01/03/1200", "08/03/1200"},
    {"row_of_1200_ends",   "28/02/1300", "07/03/1300"},
    {"row_of_1300_begins", "01/03/1300", "09/03/1300"},
    {"row_of_1300_ends",   "28/02/1400", "08/03/1400"},
    {"row_of_1400_begins", "01/03/1400", "10/03/1400"},
    {"row_of_1400_ends",   "28/02/1500", "09/03/1500"},
    {"row_of_1500_begins", "01/03/1500", "11/03/1500"},
    {"row_of_1500_ends",   "29/02/1600", "10/03/1600"},
    {"row_of_1600_begins", "01/03/1600", "11/03/1600"},
    {"row_of_1600_ends",   "28/02/1700", "10/03/1700"},
    {"row_of_1700_begins", "01/03/1700", "12/03/1700"},
    {"row_of_1700_ends",   "28/02/1800", "11/03/1800"},
    {"row_of_1800_begins", "01/03/1800", "13/03/1800"},
    {"row_of_1800_ends",   "28/02/1900", "12/03/1900"},
    {"row_of_1900_begins", "01/03/1900", "14/03/1900"},
    {"row_of_1900_ends",   "29/02/2000", "13/03/2000"},
    {"row_of_2000_begins", "01/03/2000", "14/03/2000"},
    {"last_row_ends",      "02/03/2100", "15/03/2100"},
};

// 29 February of the years that have none in the Gregorian calendar.
constexpr ConvertedDate julian_leap_days[] = {
    {"of_1100", "29/02/1100", "07/03/1100"},
    {"of_1300", "29/02/1300", "08/03/1300"},
    {"of_1400", "29/02/1400", "09/03/1400"},
    {"of_1500", "29/02/1500", "10/03/1500"},
    {"of_1700", "29/02/1700", "11/03/1700"},
    {"of_1800", "29/02/1800", "12/03/1800"},
    {"of_1900", "29/02/1900", "13/03/1900"},
    {"of_2100", "29/02/2100", "14/03/2100"},
};

constexpr ConvertedDate known_days[] = {
    {"middle_of_the_century",        "01/01/1950", "14/01/1950"},
    {"into_the_next_year",           "25/12/1949", "07/01/1950"},
    {"october_revolution",           "25/10/1917", "07/11/1917"},
    {"last_julian_day_of_england",   "02/09/1752", "13/09/1752"},
    {"last_julian_day_of_russia",    "31/01/1918", "13/02/1918"},
    {"last_julian_day_of_rome",      "04/10/1582", "14/10/1582"},
    {"birth_of_newton",              "25/12/1642", "04/01/1643"},
    {"birth_of_washington",          "11/02/1732", "22/02/1732"},
    {"common_year",                  "28/02/1953", "13/03/1953"},
    {"leap_day_that_both_have",      "29/02/1952", "13/03/1952"},
    {"first_of_a_century_year",      "01/01/1900", "13/01/1900"},
    {"last_of_a_century_year",       "31/12/1900", "13/01/1901"},
};
// clang-format on

class JulianDate : public testing::TestWithParam<ConvertedDate> {};
TEST_P(JulianDate, IsTheGregorianDateOfTheSameDay) {
    JulianConversion const conversion = julian_to_gregorian(GetParam().julian);
    ASSERT_EQ(conversion.outcome, Outcome::converted);
    ASSERT_TRUE(conversion.gregorian.has_value());
    EXPECT_EQ(write_date(*conversion.gregorian), GetParam().gregorian);
}
INSTANTIATE_TEST_SUITE_P(RowBorders, JulianDate, testing::ValuesIn(row_borders),
                         [](auto const& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(LeapDays, JulianDate, testing::ValuesIn(julian_leap_days),
                         [](auto const& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(KnownDays, JulianDate, testing::ValuesIn(known_days),
                         [](auto const& row) { return row.param.name; });

TEST(JulianConversion, ALeapDayThatTheGregorianYearLacksIsReadAsThe28th) {
    for (ConvertedDate const& row : julian_leap_days) {
        std::string const year{text::last(row.julian, 4)};
        EXPECT_EQ(julian_to_gregorian(row.julian).read_as, "28/02/" + year) << row.julian;
    }
}

TEST(JulianConversion, EveryOtherDateIsReadAsItStands) {
    for (char const* date : {"29/02/1952", "29/02/1600", "29/02/2000", "28/02/1900",
                             "01/03/1900", "01/01/1950", "31/12/1999"}) {
        EXPECT_EQ(julian_to_gregorian(date).read_as, date);
    }
}

// The two days after the last 29 February of the table come out one day early: for them no
// further century is corrected.
TEST(JulianConversion, TheLastTwoDaysOfTheTableAreOneDayEarly) {
    EXPECT_EQ(write_date(julian_to_gregorian("01/03/2100").gregorian.value()), "14/03/2100");
    EXPECT_EQ(write_date(julian_to_gregorian("02/03/2100").gregorian.value()), "15/03/2100");
}

struct UnconvertedDate {
    char const* name;
    char const* julian;
    Outcome outcome;
    friend std::ostream& operator<<(std::ostream& out, UnconvertedDate const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr UnconvertedDate unconverted_dates[] = {
    {"day_before_the_first_row",      "29/02/1000", Outcome::outside_the_table},
    {"28_february_of_1000",           "28/02/1000", Outcome::outside_the_table},
    {"year_before_the_first_row",     "31/12/0999", Outcome::outside_the_table},
    {"first_year",                    "01/01/0001", Outcome::outside_the_table},
    {"day_after_the_last_row",        "03/03/2100", Outcome::outside_the_table},
    {"year_after_the_last_row",       "01/01/2101", Outcome::outside_the_table},
    {"last_birth_year",               "31/12/2199", Outcome::outside_the_table},
    {"last_year",                     "31/12/9999", Outcome::outside_the_table},
    {"empty",                         "",           Outcome::no_date},
    {"half_typed",                    "0",          Outcome::no_date},
    {"day_zero",                      "00/01/1950", Outcome::no_date},
    {"month_thirteen",                "01/13/1950", Outcome::no_date},
    {"letters",                       "aa/bb/cccc", Outcome::no_date},
    {"leap_day_of_no_year",           "29/02/",     Outcome::no_date},
    {"leap_day_of_letters",           "29/02/abcd", Outcome::no_date},
    {"leap_day_alone",                "29/02",      Outcome::no_date},
};
// clang-format on

class NoConversion : public testing::TestWithParam<UnconvertedDate> {};
TEST_P(NoConversion, LeavesNoGregorianDate) {
    JulianConversion const conversion = julian_to_gregorian(GetParam().julian);
    EXPECT_EQ(conversion.outcome, GetParam().outcome);
    EXPECT_EQ(conversion.gregorian, std::nullopt);
}
INSTANTIATE_TEST_SUITE_P(Dates, NoConversion, testing::ValuesIn(unconverted_dates),
                         [](auto const& row) { return row.param.name; });

/// The Julian day number of a date of the Julian calendar: years begin in March, every fourth
/// has a day more.
int julian_day_number(int day, int month, int year) {
    int const before_march = month < 3 ? 1 : 0;
    int const years = year + 4800 - before_march;
    int const months = month + 12 * before_march - 3;
    return day + (153 * months + 2) / 5 + 365 * years + years / 4 - 32083;
}

/// The Gregorian date of a Julian day number.
std::string gregorian_text(int number) {
    int const from_start = number + 32044;
    int const fourth_centuries = (4 * from_start + 3) / 146097;
    int const in_century = from_start - 146097 * fourth_centuries / 4;
    int const years = (4 * in_century + 3) / 1461;
    int const in_year = in_century - 1461 * years / 4;
    int const months = (5 * in_year + 2) / 153;
    int const day = in_year - (153 * months + 2) / 5 + 1;
    int const month = months + 3 - 12 * (months / 10);
    int const year = 100 * fourth_centuries + years - 4800 + months / 10;
    return text::padded(day, 2) + "/" + text::padded(month, 2) + "/" + text::padded(year, 4);
}

TEST(JulianDayNumber, AgreesWithTheKnownDays) {
    EXPECT_EQ(julian_day_number(1, 1, -4712), 0);
    EXPECT_EQ(gregorian_text(2451545), "01/01/2000");
    EXPECT_EQ(gregorian_text(julian_day_number(4, 10, 1582) + 1), "15/10/1582");
}

TEST(JulianConversion, EveryDayOfTheTableIsTheGregorianDateOfTheSameDay) {
    constexpr int month_lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    Mismatches mismatches;
    int number_of_days = 0;
    for (int year = 1000; year <= 2100; ++year) {
        for (int month = 1; month <= 12; ++month) {
            if (year == 1000 && month < 3) continue;  // before the table
            if (year == 2100 && month > 2) continue;  // the last two days, and what is beyond
            int const length = month_lengths[month - 1] + (month == 2 && year % 4 == 0 ? 1 : 0);
            for (int day = 1; day <= length; ++day) {
                std::string const date = text::padded(day, 2) + "/" + text::padded(month, 2) +
                                         "/" + text::padded(year, 4);
                JulianConversion const conversion = julian_to_gregorian(date);
                std::string const expected =
                    gregorian_text(julian_day_number(day, month, year));
                ++number_of_days;
                if (conversion.outcome != Outcome::converted || !conversion.gregorian) {
                    mismatches.note(date, " is not converted");
                } else if (write_date(*conversion.gregorian) != expected) {
                    mismatches.note(date, " gives ", write_date(*conversion.gregorian),
                                    ", not ", expected);
                }
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
    EXPECT_EQ(number_of_days, 1100 * 365 + 275);  // a leap day in each fourth year
}

}  // namespace
}  // namespace navarun::test
