// The dates of the sun in the signs: every row of every era, and every day of six centuries.
#include <array>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/julian_calendar.h"
#include "core/text.h"
#include "tests/core/mismatches.h"
#include "zodiac/eras.h"
#include "zodiac/mansions.h"

namespace navarun {

// Found by its type's namespace where a test tells what it compared.
void PrintTo(DayMonth const& date, std::ostream* out) { *out << date.day << '/' << date.month; }

namespace test {
namespace {

struct EraRow {
    int first_year;
    int last_year;
    std::array<std::string_view, 12> signs;  // first and last day, dd/mm-dd/mm
    friend std::ostream& operator<<(std::ostream& out, EraRow const& row) {
        return out << row.first_year << " to " << row.last_year;
    }
};
// clang-format off
constexpr EraRow era_rows[] = {
    {1600, 1649, {
        "07/04-07/05", "08/05-07/06", "08/06-08/07", "09/07-09/08",
        "10/08-09/09", "10/09-09/10", "10/10-08/11", "09/11-08/12",
        "09/12-06/01", "07/01-05/02", "06/02-06/03", "07/03-06/04",
    }},
    {1650, 1699, {
        "08/04-07/05", "08/05-08/06", "09/06-09/07", "10/07-10/08",
        "11/08-10/09", "11/09-10/10", "11/10-09/11", "10/11-09/12",
        "10/12-07/01", "08/01-05/02", "06/02-07/03", "08/03-07/04",
    }},
    {1700, 1749, {
        "08/04-08/05", "09/05-09/06", "10/06-10/07", "11/07-10/08",
        "11/08-10/09", "11/09-11/10", "12/10-10/11", "11/11-10/12",
        "11/12-08/01", "09/01-06/02", "07/02-08/03", "09/03-07/04",
    }},
    {1750, 1799, {
        "09/04-09/05", "10/05-09/06", "10/06-11/07", "12/07-11/08",
        "12/08-11/09", "12/09-12/10", "13/10-11/11", "12/11-10/12",
        "11/12-09/01", "10/01-07/02", "08/02-09/03", "10/03-08/04",
    }},
    {1800, 1849, {
        "10/04-10/05", "11/05-10/06", "11/06-12/07", "13/07-12/08",
        "13/08-12/09", "13/09-13/10", "14/10-12/11", "13/11-11/12",
        "12/12-09/01", "10/01-08/02", "09/02-10/03", "11/03-09/04",
    }},
    {1850, 1899, {
        "11/04-11/05", "12/05-11/06", "12/06-12/07", "13/07-13/08",
        "14/08-13/09", "14/09-13/10", "14/10-12/11", "13/11-12/12",
        "13/12-10/01", "11/01-09/02", "10/02-11/03", "12/03-10/04",
    }},
    {1900, 1949, {
        "12/04-12/05", "13/05-12/06", "13/06-13/07", "14/07-14/08",
        "15/08-14/09", "15/09-14/10", "15/10-13/11", "14/11-13/12",
        "14/12-11/01", "12/01-10/02", "11/02-11/03", "12/03-11/04",
    }},
    {1950, 1999, {
        "13/04-12/05", "13/05-13/06", "14/06-14/07", "15/07-14/08",
        "15/08-14/09", "15/09-15/10", "16/10-14/11", "15/11-14/12",
        "15/12-12/01", "13/01-10/02", "11/02-12/03", "13/03-12/04",
    }},
    {2000, 2049, {
        "12/04-12/05", "13/05-12/06", "13/06-14/07", "15/07-14/08",
        "15/08-14/09", "15/09-15/10", "16/10-14/11", "15/11-13/12",
        "14/12-12/01", "13/01-10/02", "11/02-12/03", "13/03-11/04",
    }},
    {2050, 2099, {
        "13/04-13/05", "14/05-13/06", "14/06-15/07", "16/07-15/08",
        "16/08-15/09", "16/09-16/10", "17/10-15/11", "16/11-14/12",
        "15/12-12/01", "13/01-11/02", "12/02-13/03", "14/03-12/04",
    }},
    {2100, 2149, {
        "14/04-14/05", "15/05-14/06", "15/06-16/07", "17/07-16/08",
        "17/08-16/09", "17/09-16/10", "17/10-15/11", "16/11-15/12",
        "16/12-13/01", "14/01-12/02", "13/02-14/03", "15/03-13/04",
    }},
    {2150, 2199, {
        "15/04-15/05", "16/05-15/06", "16/06-16/07", "17/07-17/08",
        "18/08-17/09", "18/09-17/10", "18/10-16/11", "17/11-16/12",
        "17/12-14/01", "15/01-13/02", "14/02-14/03", "15/03-14/04",
    }},
};
// clang-format on

DayMonth day_month(std::string_view text) {
    return {text::number_of(text.substr(0, 2)), text::number_of(text.substr(3, 2))};
}
DayMonth first_of(std::string_view range) { return day_month(range.substr(0, 5)); }
DayMonth last_of(std::string_view range) { return day_month(range.substr(6, 5)); }

Date in_year(DayMonth date, int year) { return date_of(date.day, date.month, year).value(); }

/// The sign of a day by its own year, 0 for none.
int sign_of(Date date) {
    auto const sun = sun_sign(date, year_of(date));
    return sun ? sun->sign : 0;
}
int sign_of(std::string_view text) { return sign_of(read_date(text).value()); }

/// Position of the sun on a day by its own year, -1 for none.
int degree_of(Date date) {
    auto const sun = sun_sign(date, year_of(date));
    if (!sun) return -1;
    return degree_in_sign(sun->dates, day_of(date), month_of(date)).value_or(-1);
}
int degree_of(std::string_view text) { return degree_of(read_date(text).value()); }

class EraTable : public testing::TestWithParam<EraRow> {};

TEST_P(EraTable, HoldsTheFirstAndLastDayOfEachSign) {
    EraRow const& row = GetParam();
    auto const place = static_cast<std::size_t>((row.first_year - 1600) / 50);
    Era const& era = eras.at(place);
    EXPECT_EQ(era.first_year, row.first_year);
    EXPECT_EQ(era.last_year, row.last_year);
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(era.signs.at(i).first, first_of(row.signs.at(i))) << "sign " << i + 1;
        EXPECT_EQ(era.signs.at(i).last, last_of(row.signs.at(i))) << "sign " << i + 1;
    }
}

TEST_P(EraTable, BothEndsOfARangeAreInsideAndTheirNeighboursInTheNeighbourSigns) {
    EraRow const& row = GetParam();
    Mismatches mismatches;
    for (int year = row.first_year; year <= row.last_year; ++year) {
        for (int sign = 1; sign <= 12; ++sign) {
            std::string_view const range = row.signs.at(static_cast<std::size_t>(sign - 1));
            Date const first = in_year(first_of(range), year);
            Date const last = in_year(last_of(range), year);
            int const before = sign == 1 ? 12 : sign - 1;
            int const after = sign == 12 ? 1 : sign + 1;
            if (sign_of(first) != sign) mismatches.note(write_date(first), " not in ", sign);
            if (sign_of(last) != sign) mismatches.note(write_date(last), " not in ", sign);
            if (sign_of(first - std::chrono::days{1}) != before) {
                mismatches.note("day before ", write_date(first), " not in ", before);
            }
            if (sign_of(last + std::chrono::days{1}) != after) {
                mismatches.note("day after ", write_date(last), " not in ", after);
            }
            if (degree_of(first) != 0) mismatches.note(write_date(first), " is not at 0");
            if (degree_of(last) != 29) mismatches.note(write_date(last), " is not at 29");
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
}

TEST_P(EraTable, TheSunIsToldWithTheDatesOfItsSign) {
    EraRow const& row = GetParam();
    for (std::size_t i = 0; i < 12; ++i) {
        auto const sun = sun_sign(in_year(first_of(row.signs.at(i)), row.first_year + 7),
                                  row.first_year + 7);
        ASSERT_TRUE(sun.has_value());
        EXPECT_EQ(sun->dates.first, first_of(row.signs.at(i)));
        EXPECT_EQ(sun->dates.last, last_of(row.signs.at(i)));
    }
}

INSTANTIATE_TEST_SUITE_P(HalfCenturies, EraTable, testing::ValuesIn(era_rows),
                         [](auto const& row) { return std::to_string(row.param.first_year); });

TEST(EraTable, SignFiveHasTheSameRowInBothHalvesOfTheTwentiethCentury) {
    EXPECT_EQ(eras.at(6).signs.at(4).first, eras.at(7).signs.at(4).first);
    EXPECT_EQ(eras.at(6).signs.at(4).last, eras.at(7).signs.at(4).last);
}

struct SunCase {
    char const* name;
    std::string_view date;
    int sign;
    int degree;
    friend std::ostream& operator<<(std::ostream& out, SunCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr SunCase sun_cases[] = {
    {"second_day_of_sign_1_in_1949",          "13/04/1949", 1,  1},
    {"last_day_of_sign_12_in_1950",           "12/04/1950", 12, 29},
    {"new_year_of_1950",                      "01/01/1950", 9,  18},
    {"first_day_of_sign_9_in_1949",           "14/12/1949", 9,  0},
    {"last_day_of_1949",                      "31/12/1949", 9,  17},
    {"new_year_of_1900",                      "01/01/1900", 9,  19},
    {"last_of_may_in_sign_2",                 "31/05/1949", 2,  18},
    {"first_of_june_at_the_same_position",    "01/06/1949", 2,  18},
    {"last_day_of_the_first_half_century",    "31/12/1649", 9,  22},
    {"first_day_of_the_second_half_century",  "01/01/1650", 9,  23},
    {"leap_day_of_1600",                      "29/02/1600", 11, 23},
    {"leap_day_of_1952",                      "29/02/1952", 11, 18},
    {"first_of_march_after_a_leap_day",       "01/03/1952", 11, 18},
    {"first_day_of_all",                      "01/01/1600", 9,  24},
    {"last_day_of_all",                       "31/12/2199", 9,  14},
};
// clang-format on

class SunOnADay : public testing::TestWithParam<SunCase> {};
TEST_P(SunOnADay, StandsInItsSignAtItsPosition) {
    EXPECT_EQ(sign_of(GetParam().date), GetParam().sign);
    EXPECT_EQ(degree_of(GetParam().date), GetParam().degree);
}
INSTANTIATE_TEST_SUITE_P(Days, SunOnADay, testing::ValuesIn(sun_cases),
                         [](auto const& row) { return row.param.name; });

TEST(SunSign, AJulianDateIsLookedUpAfterItsConversion) {
    auto const gregorian = julian_to_gregorian("25/12/1949").gregorian;
    ASSERT_EQ(gregorian, read_date("07/01/1950"));
    auto const sun = sun_sign(*gregorian, 1950);
    ASSERT_TRUE(sun.has_value());
    EXPECT_EQ(sun->sign, 9);
    EXPECT_EQ(sun->dates.first, (DayMonth{15, 12}));
    EXPECT_EQ(sun->dates.last, (DayMonth{12, 1}));
    EXPECT_EQ(degree_in_sign(sun->dates, 7, 1), 24);
}

TEST(SunSign, YearsOutsideTheTablesHaveNone) {
    for (int year : {1, 1000, 1599, 2200, 2500, 9999}) {
        for (int month = 1; month <= 12; ++month) {
            EXPECT_FALSE(sun_sign(date_of(15, month, year).value(), year).has_value())
                << month << '/' << year;
        }
    }
    EXPECT_FALSE(sun_sign(read_date("31/12/1599").value(), 1599).has_value());
    EXPECT_FALSE(sun_sign(read_date("01/01/2200").value(), 2200).has_value());
}

TEST(SunSign, ADayOfAnotherYearLiesInNoRow) {
    EXPECT_FALSE(sun_sign(read_date("31/12/1949").value(), 1950).has_value());
    EXPECT_FALSE(sun_sign(read_date("01/01/1951").value(), 1950).has_value());
    EXPECT_FALSE(sun_sign(read_date("15/06/1949").value(), 1950).has_value());
}

TEST(DegreeInSign, TheStepBetweenTheMonthsIsNotSmoothed) {
    SignDates const sign_2{{13, 5}, {12, 6}};
    EXPECT_EQ(degree_in_sign(sign_2, 13, 5), 0);
    EXPECT_EQ(degree_in_sign(sign_2, 31, 5), 18);
    EXPECT_EQ(degree_in_sign(sign_2, 1, 6), 18);
    EXPECT_EQ(degree_in_sign(sign_2, 12, 6), 29);
}

TEST(DegreeInSign, OverTheNewYear) {
    SignDates const sign_9{{15, 12}, {12, 1}};
    EXPECT_EQ(degree_in_sign(sign_9, 15, 12), 0);
    EXPECT_EQ(degree_in_sign(sign_9, 31, 12), 16);
    EXPECT_EQ(degree_in_sign(sign_9, 1, 1), 18);
    EXPECT_EQ(degree_in_sign(sign_9, 12, 1), 29);
}

TEST(DegreeInSign, AMonthOutsideTheSignHasNone) {
    SignDates const sign_2{{13, 5}, {12, 6}};
    for (int month : {1, 2, 3, 4, 7, 8, 9, 10, 11, 12}) {
        EXPECT_EQ(degree_in_sign(sign_2, 13, month), std::nullopt) << month;
    }
}

TEST(SunSign, EveryDayOfSixCenturiesHasASignAPositionAndAMansion) {
    Mismatches mismatches;
    int number_of_days = 0;
    int sign_of_the_day_before = 9;
    Date const end = read_date("01/01/2200").value();
    for (Date date = read_date("01/01/1600").value(); date < end;
         date += std::chrono::days{1}) {
        ++number_of_days;
        auto const sun = sun_sign(date, year_of(date));
        if (!sun || sun->sign < 1 || sun->sign > 12) {
            mismatches.note(write_date(date), " has no sign");
            continue;
        }
        int const next = sign_of_the_day_before == 12 ? 1 : sign_of_the_day_before + 1;
        if (sun->sign != sign_of_the_day_before && sun->sign != next) {
            mismatches.note(write_date(date), " follows sign ", sign_of_the_day_before,
                            " with sign ", sun->sign);
        }
        sign_of_the_day_before = sun->sign;
        auto const degree = degree_in_sign(sun->dates, day_of(date), month_of(date));
        if (!degree || *degree < 0 || *degree > 29) {
            mismatches.note(write_date(date), " has no position");
            continue;
        }
        auto const mansion_number = mansion_at(sun->sign, *degree);
        if (!mansion_number || *mansion_number < 1 || *mansion_number > 27) {
            mismatches.note(write_date(date), " has no mansion");
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
    EXPECT_EQ(number_of_days, 219146);
}

}  // namespace
}  // namespace test
}  // namespace navarun
