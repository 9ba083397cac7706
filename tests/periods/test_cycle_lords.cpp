// The lords of year and month, and the walk of the ages round the twelve cells.
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "core/cells.h"
#include "periods/cycle_lords.h"
#include "tests/core/mismatches.h"

namespace navarun::test {
namespace {

struct YearLordCase {
    char const* name;
    int weekday_lord;
    int day;
    int month;
    int year_of_century;
    int lord;
    friend std::ostream& operator<<(std::ostream& out, YearLordCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr YearLordCase year_lord_cases[] = {
    {"sum_of_45_is_kuja",        1, 15, 3,  26, 9},
    {"sum_of_46_is_surya",       1, 15, 3,  27, 1},
    {"sum_of_9_is_kuja",         2, 1,  1,  5,  9},
    {"sum_of_18_is_kuja",        2, 1,  1,  14, 9},
    {"first_birthday_of_1900",   2, 1,  1,  1,  5},
    {"least_sum",                1, 1,  1,  0,  3},
    {"greatest_sum",             9, 31, 12, 99, 7},
};
// clang-format on

class LordOfYear : public testing::TestWithParam<YearLordCase> {};
TEST_P(LordOfYear, IsTheReducedSum) {
    YearLordCase const& row = GetParam();
    EXPECT_EQ(lord_of_year(row.weekday_lord, row.day, row.month, row.year_of_century),
              row.lord);
}
INSTANTIATE_TEST_SUITE_P(Sums, LordOfYear, testing::ValuesIn(year_lord_cases),
                         [](auto const& row) { return row.param.name; });

TEST(LordOfYearSweep, TheNextYearsLordIsTheNextNumber) {
    Mismatches mismatches;
    for (int weekday_lord = 1; weekday_lord <= 9; ++weekday_lord) {
        for (int day = 1; day <= 31; ++day) {
            for (int month = 1; month <= 12; ++month) {
                int expected = (weekday_lord + day + month) % 9;
                if (expected == 0) expected = 9;
                for (int year = 0; year <= 99; ++year) {
                    if (lord_of_year(weekday_lord, day, month, year) != expected) {
                        mismatches.note(weekday_lord, ' ', day, '/', month, '/', year);
                    }
                    expected = expected == 9 ? 1 : expected + 1;
                }
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
}

struct MonthLordCase {
    char const* name;
    int age;
    int month;
    int year_lord;
    int lord;
    friend std::ostream& operator<<(std::ostream& out, MonthLordCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr MonthLordCase month_lord_cases[] = {
    {"january_of_age_1_is_the_years_lord", 1,   1,  5, 5},
    {"kuja_of_age_1",                      1,   1,  9, 9},
    {"march_of_age_1",                     1,   3,  9, 2},
    {"sum_of_9",                           1,   9,  1, 9},
    {"sum_of_18",                          2,   6,  1, 9},
    {"one_year_on",                        2,   1,  5, 8},
    {"three_years_on_come_round",          4,   1,  5, 5},
    {"age_40_born_in_december",            40,  12, 7, 9},
    {"greatest_age",                       350, 12, 9, 5},
};
// clang-format on

class LordOfFirstMonth : public testing::TestWithParam<MonthLordCase> {};
TEST_P(LordOfFirstMonth, IsTheReducedSum) {
    MonthLordCase const& row = GetParam();
    EXPECT_EQ(lord_of_first_month(row.age, row.month, row.year_lord), row.lord);
}
INSTANTIATE_TEST_SUITE_P(Sums, LordOfFirstMonth, testing::ValuesIn(month_lord_cases),
                         [](auto const& row) { return row.param.name; });

TEST(LordOfFirstMonthSweep, TwelveMonthsOnIsTheNextAge) {
    Mismatches mismatches;
    for (int month = 1; month <= 12; ++month) {
        for (int year_lord = 1; year_lord <= 9; ++year_lord) {
            int lord = lord_of_first_month(1, month, year_lord);
            for (int age = 2; age <= 350; ++age) {
                for (int k = 1; k <= 12; ++k) lord = lord == 9 ? 1 : lord + 1;
                if (lord_of_first_month(age, month, year_lord) != lord) {
                    mismatches.note("age ", age, ", month ", month, ", lord ", year_lord);
                }
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
}

TEST(NextMonthLord, AfterKujaSuryaComesAgain) {
    for (int lord = 1; lord <= 8; ++lord) EXPECT_EQ(next_month_lord(lord), lord + 1);
    EXPECT_EQ(next_month_lord(9), 1);
}

TEST(NextMonthLord, InTwelveMonthsThreeLordsComeTwice) {
    for (int first = 1; first <= 9; ++first) {
        int occurrences[10] = {};
        int lord = first;
        for (int k = 1; k <= 12; ++k) {
            ++occurrences[lord];
            lord = next_month_lord(lord);
        }
        int twice = 0;
        for (int number = 1; number <= 9; ++number) {
            EXPECT_GE(occurrences[number], 1);
            EXPECT_LE(occurrences[number], 2);
            twice += occurrences[number] == 2 ? 1 : 0;
        }
        EXPECT_EQ(twice, 3);
    }
}

TEST(CellOfAge, Age1IsTheSunsCell) {
    for (int cell = 1; cell <= 12; ++cell) EXPECT_EQ(cell_of_age(cell, 1), cell);
}

TEST(CellOfAge, IsTwelveNeverNought) {
    EXPECT_EQ(cell_of_age(12, 1), 12);
    EXPECT_EQ(cell_of_age(1, 12), 12);
    EXPECT_EQ(cell_of_age(6, 7), 12);
    EXPECT_EQ(cell_of_age(1, 24), 12);
    EXPECT_EQ(cell_of_age(12, 13), 12);
}

TEST(CellOfAge, GoesOnAfterTwelve) {
    EXPECT_EQ(cell_of_age(12, 2), 1);
    EXPECT_EQ(cell_of_age(1, 13), 1);
    EXPECT_EQ(cell_of_age(9, 40), 12);
    EXPECT_EQ(cell_of_age(1, 350), 2);
}

TEST(CellOfAge, EachYearIsOneCellOn) {
    for (int sun_cell = 1; sun_cell <= 12; ++sun_cell) {
        int cell = sun_cell;
        for (int age = 1; age <= 350; ++age) {
            EXPECT_EQ(cell_of_age(sun_cell, age), cell) << sun_cell << ", age " << age;
            cell = cell == 12 ? 1 : cell + 1;
        }
    }
}

TEST(CellsRoundTheGrid, TwelveAndOneAreNeighbours) {
    EXPECT_EQ(cell_before(1), 12);
    EXPECT_EQ(cell_after(12), 1);
    for (int cell = 1; cell <= 11; ++cell) {
        EXPECT_EQ(cell_after(cell), cell + 1);
        EXPECT_EQ(cell_before(cell + 1), cell);
    }
}

TEST(CellsRoundTheGrid, ColumnZeroIsTheTwelfthCell) {
    EXPECT_EQ(cell_of_column(0), 12);
    for (int column = 1; column <= 12; ++column) EXPECT_EQ(cell_of_column(column), column);
}

}  // namespace
}  // namespace navarun::test
