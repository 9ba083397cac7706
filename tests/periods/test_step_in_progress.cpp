// Which step of a period is in progress today.
#include <array>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/cells.h"
#include "periods/step_in_progress.h"

namespace navarun::test {
namespace {

Date day(std::string_view text) { return read_date(text).value(); }

/// The dates of the cells 1 to 12 (at 0 to 11), as the searches ask for them.
struct CellDates : std::array<std::optional<Date>, 12> {
    std::optional<Date> operator()(int cell) const {
        return at(static_cast<std::size_t>(cell - 1));
    }
};

/// The dates of a period: from `start_cell` round the grid, a step of months from cell to cell.
CellDates period_dates(std::string_view start, int start_cell, int months) {
    CellDates dates;
    int cell = start_cell;
    for (int step = 0; step < 12; ++step) {
        dates.at(static_cast<std::size_t>(cell - 1)) = add_months(day(start), step * months);
        cell = cell == 12 ? 1 : cell + 1;
    }
    return dates;
}

struct YearCase {
    char const* name;
    std::string_view anniversary;
    std::string_view today;
    bool in_progress;
    friend std::ostream& operator<<(std::ostream& out, YearCase const& row) {
        return out << row.name;
    }
};
constexpr YearCase year_cases[] = {
    {"day_before", "15/03/2023", "14/03/2023", false},
    {"day_itself", "15/03/2023", "15/03/2023", false},
    {"one_day_on", "15/03/2023", "16/03/2023", true},
    {"half_a_year_on", "15/03/2023", "15/09/2023", true},
    {"365_days_on", "15/03/2023", "14/03/2024", true},
    {"366_days_on_over_a_leap_day", "15/03/2023", "15/03/2024", true},
    {"367_days_on", "15/03/2023", "16/03/2024", false},
    {"366_days_on_in_a_common_year", "15/03/2021", "16/03/2022", true},
    {"367_days_on_in_a_common_year", "15/03/2021", "17/03/2022", false},
    {"years_on", "15/03/2021", "15/06/2024", false},
    {"years_before", "15/03/2021", "15/06/2019", false},
};

class YearInProgress : public testing::TestWithParam<YearCase> {};
TEST_P(YearInProgress, RunsFromTheDayAfterTheAnniversaryToThe366th) {
    YearCase const& row = GetParam();
    EXPECT_EQ(in_year_in_progress(day(row.anniversary), day(row.today)), row.in_progress);
}
INSTANTIATE_TEST_SUITE_P(Days, YearInProgress, testing::ValuesIn(year_cases),
                         [](auto const& row) { return row.param.name; });

struct StepCase {
    char const* name;
    int start_cell;
    std::string_view today;
    int cell;
    friend std::ostream& operator<<(std::ostream& out, StepCase const& row) {
        return out << row.name;
    }
};
// Steps of six months from 15/03/2020 on.
// clang-format off
constexpr StepCase step_cases[] = {
    {"start_1_before_every_date",       1,  "14/03/2020", 1},
    {"start_1_on_the_first_date",       1,  "15/03/2020", 2},
    {"start_1_one_day_on",              1,  "16/03/2020", 2},
    {"start_1_day_before_the_second",   1,  "14/09/2020", 2},
    {"start_1_on_the_second",           1,  "15/09/2020", 3},
    {"start_1_before_the_last",         1,  "14/09/2025", 12},
    {"start_1_on_the_last",             1,  "15/09/2025", 1},
    {"start_1_after_all",               1,  "01/01/2030", 1},
    {"start_12_before_every_date",      12, "14/03/2020", 12},
    {"start_12_on_the_first_date",      12, "15/03/2020", 1},
    {"start_12_day_before_the_third",   12, "14/03/2021", 2},
    {"start_12_on_the_third",           12, "15/03/2021", 3},
    {"start_12_before_the_last",        12, "14/09/2025", 11},
    {"start_12_after_all",              12, "15/09/2025", 12},
    {"start_9_one_day_on",              9,  "16/03/2020", 10},
    {"start_9_in_its_last_cell_of_row", 9,  "16/03/2021", 12},
    {"start_9_over_the_end",            9,  "15/09/2021", 1},
    {"start_9_before_its_last_step",    9,  "14/09/2025", 8},
    {"start_9_in_its_last_step",        9,  "15/09/2025", 9},
};
// clang-format on

class CellAfterToday : public testing::TestWithParam<StepCase> {};
TEST_P(CellAfterToday, IsTheFirstThatStartsLaterRoundTheGrid) {
    StepCase const& row = GetParam();
    CellDates const dates = period_dates("15/03/2020", row.start_cell, 6);
    EXPECT_EQ(cell_after_today(dates, row.start_cell, day(row.today)), row.cell);
}
INSTANTIATE_TEST_SUITE_P(Steps, CellAfterToday, testing::ValuesIn(step_cases),
                         [](auto const& row) { return row.param.name; });

TEST(CellAfterTodaySweep, EachDayOfThePeriodFollowsItsStep) {
    for (int start_cell = 1; start_cell <= 12; ++start_cell) {
        CellDates const dates = period_dates("29/02/2020", start_cell, 3);
        for (int step = 0; step < 12; ++step) {
            // From the step's first day to the day before the next.
            int const cell = cell_of_age(start_cell, step + 1);
            int const next = cell == 12 ? 1 : cell + 1;
            Date const first = add_months(day("29/02/2020"), 3 * step);
            Date const end = add_months(day("29/02/2020"), 3 * (step + 1));
            for (Date today = first; today < end; today += std::chrono::days{1}) {
                ASSERT_EQ(cell_after_today(dates, start_cell, today), next)
                    << write_date(today) << " from cell " << start_cell;
            }
        }
    }
}

/// The texts of those cells, as a search by the text asks for them.
struct CellTexts : std::array<std::string, 12> {
    explicit CellTexts(CellDates const& dates) {
        for (std::size_t i = 0; i < size(); ++i) at(i) = dates[i] ? write_date(*dates[i]) : "";
    }
    std::string_view operator()(int cell) const {
        return at(static_cast<std::size_t>(cell - 1));
    }
};

TEST(CellStartingOn, FindsTheStepOfTheAnniversary) {
    CellTexts const texts{period_dates("15/03/2020", 9, 6)};
    EXPECT_EQ(cell_starting_on(texts, "15/03/2020"), 9);
    EXPECT_EQ(cell_starting_on(texts, "15/09/2021"), 12);
    EXPECT_EQ(cell_starting_on(texts, "15/03/2022"), 1);
    EXPECT_EQ(cell_starting_on(texts, "15/09/2025"), 8);
}

TEST(CellStartingOn, FindsNoneWhereNoStepStartsThatDay) {
    CellTexts const texts{period_dates("15/03/2020", 9, 6)};
    EXPECT_EQ(cell_starting_on(texts, "16/03/2020"), std::nullopt);
    EXPECT_EQ(cell_starting_on(texts, "15/03/2019"), std::nullopt);
    EXPECT_EQ(cell_starting_on(texts, "15/03/2026"), std::nullopt);
}

TEST(CellStartingOn, OfTwoCellsTheLowerIsFound) {
    CellDates dates = period_dates("15/03/2020", 9, 6);
    dates.at(4) = day("15/03/2020");
    EXPECT_EQ(cell_starting_on(CellTexts{dates}, "15/03/2020"), 5);
}

TEST(CellStartingOn, CellsWithoutADateAreNotFound) {
    EXPECT_EQ(cell_starting_on(CellTexts{CellDates{}}, "15/03/2020"), std::nullopt);
}

}  // namespace
}  // namespace navarun::test
