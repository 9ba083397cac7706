// The calendar and its date texts: reading, writing, adding, counting.
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/calendar.h"
#include "tests/core/mismatches.h"

namespace navarun::test {
namespace {

using namespace std::chrono_literals;

/// The day of a text that is known to be a date.
Date day(std::string_view text) { return read_date(text).value(); }

struct AcceptedDate {
    char const* name;
    std::string_view text;
    std::chrono::year_month_day date;
    friend std::ostream& operator<<(std::ostream& out, AcceptedDate const& row) {
        return out << row.name;
    }
};
constexpr AcceptedDate accepted_dates[] = {
    {"plain", "17/05/1962", 1962y / 5 / 17},
    {"single_digits", "7/5/1962", 1962y / 5 / 7},
    {"first_year", "01/01/0001", 1y / 1 / 1},
    {"last_year", "31/12/9999", 9999y / 12 / 31},
    {"year_is_the_number_written", "01/02/62", 62y / 2 / 1},
    {"year_of_one_digit", "01/02/5", 5y / 2 / 1},
    {"blanks_round_the_first_stroke", "01 / 01/1902", 1902y / 1 / 1},
    {"blanks_round_both_strokes", "01 / 01 / 1902", 1902y / 1 / 1},
    {"many_blanks", "01   /   01/   1902", 1902y / 1 / 1},
    {"ten_characters_with_a_short_day", "1 /05/1962", 1962y / 5 / 1},
    {"ten_characters_with_a_short_month", "01/ 5/1962", 1962y / 5 / 1},
    {"ten_characters_with_a_short_year", "01/05/ 962", 962y / 5 / 1},
    {"leap_day", "29/02/1952", 1952y / 2 / 29},
    {"leap_day_of_1600", "29/02/1600", 1600y / 2 / 29},
    {"no_leap_day_in_1901", "29/02/1901", 1901y / 2 / 28},
    {"no_leap_day_in_1900", "29/02/1900", 1900y / 2 / 28},
    {"thirtieth_of_february", "30/02/1952", 1952y / 2 / 29},
    {"thirty_first_of_february", "31/02/1953", 1953y / 2 / 28},
    {"thirty_first_of_april", "31/04/1962", 1962y / 4 / 30},
    {"thirty_first_of_november", "31/11/1962", 1962y / 11 / 30},
};

class AcceptedDateText : public testing::TestWithParam<AcceptedDate> {};
TEST_P(AcceptedDateText, IsThatDay) {
    EXPECT_EQ(read_date(GetParam().text), Date{GetParam().date});
}
INSTANTIATE_TEST_SUITE_P(Dates, AcceptedDateText, testing::ValuesIn(accepted_dates),
                         [](auto const& row) { return row.param.name; });

struct RejectedDate {
    char const* name;
    std::string_view text;
    friend std::ostream& operator<<(std::ostream& out, RejectedDate const& row) {
        return out << row.name;
    }
};
constexpr RejectedDate rejected_dates[] = {
    {"empty", ""},
    {"blank", " "},
    {"half_typed_day", "0"},
    {"strokes_alone", "//"},
    {"no_year", "01/01"},
    {"empty_year", "01/01/"},
    {"empty_month", "01//1900"},
    {"empty_day", "/01/1900"},
    {"day_zero", "00/01/1900"},
    {"day_thirty_two", "32/01/1900"},
    {"month_zero", "01/00/1900"},
    {"month_thirteen", "01/13/1900"},
    {"year_zero", "01/01/0000"},
    {"year_of_five_digits", "01/01/10000"},
    {"negative_day", "-1/01/1900"},
    {"signed_day", "+1/01/1900"},
    {"negative_year", "01/01/-1900"},
    {"day_past_every_number", "99999999999999999999/01/1900"},
    {"day_that_would_wrap", "4294967297/01/1900"},
    {"year_that_would_wrap", "01/01/4294969196"},
    {"year_past_every_number", "01/01/99999999999999999999"},
    {"fourth_part", "01/01/1900/1"},
    {"stroke_behind", "01/01/1900/"},
    {"other_separators", "01-01-1900"},
    {"year_first", "1900-01-01"},
    {"letters", "aa/bb/cccc"},
    {"letter_behind_the_year", "01/01/1900a"},
    {"blank_inside_a_number", "0 1/01/1900"},
    {"blank_inside_the_year", "01/01/19 00"},
    {"decimal_day", "1.5/01/1900"},
    {"month_in_words", "01/janvier/1900"},
};

class RejectedDateText : public testing::TestWithParam<RejectedDate> {};
TEST_P(RejectedDateText, IsNoDate) { EXPECT_EQ(read_date(GetParam().text), std::nullopt); }
INSTANTIATE_TEST_SUITE_P(Dates, RejectedDateText, testing::ValuesIn(rejected_dates),
                         [](auto const& row) { return row.param.name; });

TEST(DateOf, ADayBeyondItsMonthIsTheLastOne) {
    EXPECT_EQ(date_of(31, 1, 1962), Date{1962y / 1 / 31});
    EXPECT_EQ(date_of(31, 4, 1962), Date{1962y / 4 / 30});
    EXPECT_EQ(date_of(31, 2, 1962), Date{1962y / 2 / 28});
    EXPECT_EQ(date_of(31, 2, 1964), Date{1964y / 2 / 29});
    EXPECT_EQ(date_of(1, 1, 1), Date{1y / 1 / 1});
    EXPECT_EQ(date_of(31, 12, 9999), Date{9999y / 12 / 31});
}

TEST(DateOf, NumbersOutsideTheirRangesAreNoDate) {
    EXPECT_EQ(date_of(0, 1, 1962), std::nullopt);
    EXPECT_EQ(date_of(32, 1, 1962), std::nullopt);
    EXPECT_EQ(date_of(-1, 1, 1962), std::nullopt);
    EXPECT_EQ(date_of(1, 0, 1962), std::nullopt);
    EXPECT_EQ(date_of(1, 13, 1962), std::nullopt);
    EXPECT_EQ(date_of(1, -3, 1962), std::nullopt);
    EXPECT_EQ(date_of(1, 1, 0), std::nullopt);
    EXPECT_EQ(date_of(1, 1, -5), std::nullopt);
    EXPECT_EQ(date_of(1, 1, 10000), std::nullopt);
    // Numbers that would come into range in a narrower type.
    EXPECT_EQ(date_of(257, 1, 1962), std::nullopt);
    EXPECT_EQ(date_of(1, 257, 1962), std::nullopt);
    EXPECT_EQ(date_of(1, 1, 65536 + 1962), std::nullopt);
}

TEST(WriteDate, TwoTwoAndFourDigits) {
    EXPECT_EQ(write_date(Date{1962y / 5 / 7}), "07/05/1962");
    EXPECT_EQ(write_date(Date{1962y / 12 / 31}), "31/12/1962");
    EXPECT_EQ(write_date(Date{5y / 1 / 1}), "01/01/0005");
    EXPECT_EQ(write_date(Date{800y / 12 / 25}), "25/12/0800");
    EXPECT_EQ(write_date(Date{9999y / 12 / 31}), "31/12/9999");
}

TEST(DateParts, AreThoseOfTheCalendar) {
    Date const date = day("17/05/1962");
    EXPECT_EQ(year_of(date), 1962);
    EXPECT_EQ(month_of(date), 5);
    EXPECT_EQ(day_of(date), 17);
}

struct WeekdayCase {
    char const* name;
    std::string_view date;
    int number;
    friend std::ostream& operator<<(std::ostream& out, WeekdayCase const& row) {
        return out << row.name;
    }
};
constexpr WeekdayCase weekday_cases[] = {
    {"first_of_1900_is_a_monday", "01/01/1900", 2},
    {"storming_of_the_bastille_in_the_gregorian_calendar", "14/07/1789", 3},
    {"first_moon_landing_is_a_sunday", "20/07/1969", 1},
    {"first_of_2000_is_a_saturday", "01/01/2000", 7},
    {"first_gregorian_day_is_a_friday", "15/10/1582", 6},
    {"leap_day_of_2024_is_a_thursday", "29/02/2024", 5},
    {"armistice_of_1918_is_a_monday", "11/11/1918", 2},
    {"liberation_of_1945_is_a_tuesday", "08/05/1945", 3},
    {"first_of_2025_is_a_wednesday", "01/01/2025", 4},
};

class WeekdayOfDate : public testing::TestWithParam<WeekdayCase> {};
TEST_P(WeekdayOfDate, IsTheOneInTheAlmanac) {
    EXPECT_EQ(weekday_of(day(GetParam().date)), GetParam().number);
}
INSTANTIATE_TEST_SUITE_P(Almanac, WeekdayOfDate, testing::ValuesIn(weekday_cases),
                         [](auto const& row) { return row.param.name; });

struct AdditionCase {
    char const* name;
    std::string_view from;
    int count;
    std::string_view to;
    friend std::ostream& operator<<(std::ostream& out, AdditionCase const& row) {
        return out << row.name;
    }
};
constexpr AdditionCase month_additions[] = {
    {"none", "31/01/1953", 0, "31/01/1953"},
    {"one", "15/01/1953", 1, "15/02/1953"},
    {"clipped_to_february", "31/01/1953", 1, "28/02/1953"},
    {"clipped_to_a_leap_february", "31/01/1952", 1, "29/02/1952"},
    {"clipped_to_thirty", "31/03/1953", 1, "30/04/1953"},
    {"not_clipped_two_on", "31/01/1953", 2, "31/03/1953"},
    {"the_day_never_grows", "28/02/1953", 1, "28/03/1953"},
    {"into_the_next_year", "15/12/1953", 1, "15/01/1954"},
    {"from_november_into_february", "30/11/1953", 3, "28/02/1954"},
    {"a_year", "29/02/1952", 12, "28/02/1953"},
    {"six_years_by_months", "15/03/1979", 66, "15/09/1984"},
    {"back", "15/01/1953", -1, "15/12/1952"},
    {"back_clipped", "31/03/1953", -1, "28/02/1953"},
    {"back_a_year", "31/03/1953", -12, "31/03/1952"},
    {"over_a_common_century", "29/02/1896", 48, "28/02/1900"},
};
constexpr AdditionCase year_additions[] = {
    {"none", "29/02/1952", 0, "29/02/1952"},
    {"leap_day_clipped", "29/02/1952", 1, "28/02/1953"},
    {"leap_day_kept", "29/02/1952", 4, "29/02/1956"},
    {"leap_day_in_1900", "29/02/1896", 4, "28/02/1900"},
    {"leap_day_in_2000", "29/02/1996", 4, "29/02/2000"},
    {"plain", "17/05/1962", 350, "17/05/2312"},
    {"back", "17/05/1962", -62, "17/05/1900"},
    {"last_of_the_year", "31/12/1999", 1, "31/12/2000"},
};

class MonthAddition : public testing::TestWithParam<AdditionCase> {};
TEST_P(MonthAddition, KeepsTheDayOrClipsIt) {
    AdditionCase const& row = GetParam();
    EXPECT_EQ(write_date(add_months(day(row.from), row.count)), row.to);
}
INSTANTIATE_TEST_SUITE_P(Dates, MonthAddition, testing::ValuesIn(month_additions),
                         [](auto const& row) { return row.param.name; });

class YearAddition : public testing::TestWithParam<AdditionCase> {};
TEST_P(YearAddition, KeepsTheDayOrClipsIt) {
    AdditionCase const& row = GetParam();
    EXPECT_EQ(write_date(add_years(day(row.from), row.count)), row.to);
}
INSTANTIATE_TEST_SUITE_P(Dates, YearAddition, testing::ValuesIn(year_additions),
                         [](auto const& row) { return row.param.name; });

TEST(DaysBetween, CountsForwardAndBack) {
    EXPECT_EQ(days_between(day("01/01/1900"), day("01/01/1900")), 0);
    EXPECT_EQ(days_between(day("31/12/1899"), day("01/01/1900")), 1);
    EXPECT_EQ(days_between(day("01/01/1900"), day("31/12/1899")), -1);
    EXPECT_EQ(days_between(day("28/02/1900"), day("01/03/1900")), 1);
    EXPECT_EQ(days_between(day("28/02/2000"), day("01/03/2000")), 2);
    EXPECT_EQ(days_between(day("01/01/1900"), day("01/01/2000")), 36524);
}

TEST(Bissextile_G, CommonCenturiesAreNotLeap) {
    EXPECT_FALSE(Bissextile_G(1900));
    EXPECT_TRUE(Bissextile_G(2000));
    EXPECT_TRUE(Bissextile_G(1996));
    EXPECT_FALSE(Bissextile_G(1999));
    EXPECT_TRUE(Bissextile_G(1600));
    EXPECT_FALSE(Bissextile_G(1700));
    EXPECT_FALSE(Bissextile_G(1800));
    EXPECT_FALSE(Bissextile_G(2100));
    EXPECT_TRUE(Bissextile_G(2024));
}

TEST(NbrJours, MonthsOfAYear) {
    constexpr int days_of_common_year[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(NbrJours(month, 1999), days_of_common_year[month - 1]) << month;
    }
    EXPECT_EQ(NbrJours(2, 1900), 28);
    EXPECT_EQ(NbrJours(2, 2000), 29);
    EXPECT_EQ(NbrJours(2, 1996), 29);
}

TEST(NbrJours, ANumberThatIsNoMonthHas31) {
    EXPECT_EQ(NbrJours(13, 1900), 31);
    EXPECT_EQ(NbrJours(13, 2000), 31);
    EXPECT_EQ(NbrJours(0, 1999), 31);
    EXPECT_EQ(NbrJours(-2, 1999), 31);
    EXPECT_EQ(NbrJours(99, 1999), 31);
}

TEST(IsLeapDay, ByTheFirstFiveCharacters) {
    EXPECT_TRUE(is_leap_day("29/02/1952"));
    EXPECT_TRUE(is_leap_day("29/02/1953"));
    EXPECT_TRUE(is_leap_day("29/02"));
    EXPECT_FALSE(is_leap_day("28/02/1952"));
    EXPECT_FALSE(is_leap_day("29/12/1952"));
    EXPECT_FALSE(is_leap_day("29/0"));
    EXPECT_FALSE(is_leap_day(""));
}

struct LeapBirthCase {
    char const* name;
    int day;
    int month;
    int year;
    int shown;
    friend std::ostream& operator<<(std::ostream& out, LeapBirthCase const& row) {
        return out << row.name;
    }
};
constexpr LeapBirthCase leap_birth_cases[] = {
    {"march_after_a_clipped_february", 28, 3, 1953, 29},
    {"january", 28, 1, 1953, 29},
    {"the_29th_already", 29, 7, 1953, 29},
    {"any_day", 1, 12, 1953, 29},
    {"february_of_a_common_year", 28, 2, 1953, 28},
    {"february_of_1900", 28, 2, 1900, 28},
    {"february_of_a_leap_year", 28, 2, 1956, 29},
    {"february_of_2000", 28, 2, 2000, 29},
};

class Fevrier29 : public testing::TestWithParam<LeapBirthCase> {};
TEST_P(Fevrier29, KeepsThe29thWhereTheMonthHasIt) {
    EXPECT_EQ(fevrier29(GetParam().day, GetParam().month, GetParam().year), GetParam().shown);
}
INSTANTIATE_TEST_SUITE_P(Dates, Fevrier29, testing::ValuesIn(leap_birth_cases),
                         [](auto const& row) { return row.param.name; });

TEST(Calendar, EveryDayOfSixCenturiesFollowsTheOneBeforeAndComesBackFromItsText) {
    constexpr int month_lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    Mismatches mismatches;
    int number_of_days = 0;
    int weekday = 7;  // 01/01/1600 is a Saturday, as is 01/01/2000, 400 years later
    Date expected = day("01/01/1600");
    for (int year = 1600; year <= 2199; ++year) {
        bool const common_century =
            year == 1700 || year == 1800 || year == 1900 || year == 2100;
        bool const leap = year % 4 == 0 && !common_century;
        if (Bissextile_G(year) != leap) mismatches.note("leap year ", year);
        for (int month = 1; month <= 12; ++month) {
            int const length = month_lengths[month - 1] + (month == 2 && leap ? 1 : 0);
            if (NbrJours(month, year) != length) mismatches.note("length ", month, ' ', year);
            for (int number = 1; number <= length; ++number) {
                auto const date = date_of(number, month, year);
                std::string const text = write_date(expected);
                if (date != expected || read_date(text) != expected) {
                    mismatches.note("text ", text);
                }
                if (year_of(expected) != year || month_of(expected) != month ||
                    day_of(expected) != number) {
                    mismatches.note("parts ", text);
                }
                if (weekday_of(expected) != weekday) mismatches.note("weekday ", text);
                weekday = weekday == 7 ? 1 : weekday + 1;
                expected += std::chrono::days{1};
                ++number_of_days;
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
    EXPECT_EQ(number_of_days, 219146);
    EXPECT_EQ(write_date(expected), "01/01/2200");
}

}  // namespace
}  // namespace navarun::test
