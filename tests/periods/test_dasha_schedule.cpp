// How each age of each sequence is written into the cells, the hand-kept oddities included.
#include <algorithm>
#include <array>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/calendar.h"
#include "core/cells.h"
#include "periods/dasha_schedule.h"
#include "tests/core/mismatches.h"
#include "tests/periods/circle_walk.h"

namespace navarun::test {
namespace {

/// What stands in the cells at one age.
struct Step {
    std::optional<int> date_row;
    int column_age = 0;
    int months = 0;
    std::optional<Lord> assigned;
    bool operator==(Step const&) const = default;
    friend std::ostream& operator<<(std::ostream& out, Step const& step) {
        out << "{date row " << step.date_row.value_or(0) << ", column of age "
            << step.column_age << ", " << step.months << " months, lord ";
        return out << (step.assigned ? number_of(*step.assigned) : 0) << '}';
    }
};
using OptionalStep = std::optional<Step>;

std::string told(OptionalStep const& step) {
    return step ? testing::PrintToString(*step) : "no case";
}

OptionalStep step_at(int column, int age) {
    auto const step = dasha_step(column, age);
    if (!step) return std::nullopt;
    return Step{step->date_row, step->column_age, step->months, step->assigned};
}

constexpr std::optional<int> cycle_year_shown = std::nullopt;
constexpr std::optional<Lord> no_lord = std::nullopt;

// --- The schedule stated a second time ----------------------------------------------------

struct AgeRange {
    int column;
    int first;
    int last;
    bool holds(int in_column, int age) const {
        return column == in_column && first <= age && age <= last;
    }
};

// Ages that the sequences forgot.
constexpr AgeRange forgotten_ages[] = {
    {guru_first, 265, 265},  {guru_first, 300, 300},   {guru_first, 335, 335},
    {ketu_first, 258, 258},  {ketu_first, 285, 289},   {ketu_first, 320, 324},
    {rahu_first, 155, 155},  {shani_first, 2, 3},      {shani_first, 268, 268},
    {budha_first, 343, 344}, {kuja_first, 171, 171},   {kuja_first, 288, 288},
    {kuja_first, 300, 300},  {shukra_first, 242, 242}, {surya_first, 296, 300},
    {surya_first, 321, 321}, {surya_first, 335, 335},
};

// Ages taken as later years of a period that is over.
struct Held {
    AgeRange ages;
    int start_age;  // of the period that holds them
};
constexpr Held held_ages[] = {
    {{ketu_first, 261, 261}, 258},
    {{ketu_first, 291, 295}, 284},
    {{ketu_first, 326, 330}, 319},
};

std::optional<Lord> lord_assigned(int column, Lord lord) {
    switch (column) {
        case surya_first:
            return lord == Lord::Shukra || lord == Lord::Ketu ? Lord::Surya : lord;
        case rahu_first:
            return lord == Lord::Rahu ? std::optional{Lord::Rahu} : no_lord;
        case guru_first:
        case ketu_first:
        case shani_first:
            return no_lord;
        default:
            return lord;
    }
}

OptionalStep stated(int column, std::vector<WalkedYear> const& life, int age) {
    for (AgeRange const& range : forgotten_ages) {
        if (range.holds(column, age)) return std::nullopt;
    }
    WalkedYear year = life.at(static_cast<std::size_t>(age - 1));
    bool first_year = year.rank == 1;
    for (Held const& held : held_ages) {
        if (!held.ages.holds(column, age)) continue;
        year = life.at(static_cast<std::size_t>(held.start_age - 1));
        first_year = false;
    }
    if (column == ketu_first && age == 259) {
        first_year = true;
        year.start_age = 259;
    }
    Step step{first_year ? cycle_year_shown : year.row(), year.start_age, year.years,
              lord_assigned(column, year.lord)};
    if (column == shukra_first && year.lord == Lord::Surya) step.months = 3;
    if (column == shukra_first && age == 104) step.column_age = 104;
    if (column == surya_first && age >= 241 && age <= 245) {
        step.date_row = life.at(246 - 1).row();
    }
    return step;
}

TEST(DashaStep, EveryAgeOfEverySequenceIsThatOfTheWalkAndItsExceptions) {
    Mismatches mismatches;
    int cases = 0;
    for (int column = 1; column <= 9; ++column) {
        auto const life = walk(column, 350);
        for (int age = 1; age <= 350; ++age) {
            OptionalStep const expected = stated(column, life, age);
            OptionalStep const actual = step_at(column, age);
            ++cases;
            if (actual != expected) {
                mismatches.note(sequence_name(column), " first, age ", age, ": ", told(actual),
                                " instead of ", told(expected));
            }
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
    EXPECT_EQ(cases, 9 * 350);
}

TEST(DashaStep, ThirtyOneAgesInAllHaveNoCase) {
    int without_case = 0;
    for (int column = 1; column <= 9; ++column) {
        for (int age = 1; age <= 350; ++age) without_case += dasha_step(column, age) ? 0 : 1;
    }
    // Guru 3, Ketu 11, Rahu 1, Shani 3, Budha 2, Kuja 3, Shukra 1, Surya 7
    EXPECT_EQ(without_case, 3 + 11 + 1 + 3 + 2 + 3 + 1 + 7);
}

TEST(DashaStep, AgesOutsideTheTenTurnsHaveNoCase) {
    for (int column = 1; column <= 9; ++column) {
        EXPECT_FALSE(dasha_step(column, 0).has_value()) << sequence_name(column);
        EXPECT_FALSE(dasha_step(column, -1).has_value()) << sequence_name(column);
        EXPECT_FALSE(dasha_step(column, 351).has_value()) << sequence_name(column);
        EXPECT_FALSE(dasha_step(column, 1000).has_value()) << sequence_name(column);
    }
}

// --- The exceptions, one by one -----------------------------------------------------------

TEST(DashaExceptions, GuruFirstForgets265And300And335) {
    for (int age : {265, 300, 335}) EXPECT_EQ(step_at(guru_first, age), std::nullopt) << age;
    // Each is the second year of a Budha period, whose first year stands.
    EXPECT_EQ(step_at(guru_first, 264), (Step{cycle_year_shown, 264, 2, no_lord}));
    EXPECT_EQ(step_at(guru_first, 299), (Step{cycle_year_shown, 299, 2, no_lord}));
    EXPECT_EQ(step_at(guru_first, 334), (Step{cycle_year_shown, 334, 2, no_lord}));
    EXPECT_EQ(step_at(guru_first, 230), (Step{57, 229, 2, no_lord}));
}

TEST(DashaExceptions, KetuFirstForgets258) {
    EXPECT_EQ(step_at(ketu_first, 258), std::nullopt);
    EXPECT_EQ(step_at(ketu_first, 257), (Step{cycle_year_shown, 257, 1, no_lord}));
}

TEST(DashaExceptions, KetuFirstForgetsTheLaterYearsOfTheGuruPeriodsFrom284And319) {
    for (int age = 285; age <= 289; ++age) {
        EXPECT_EQ(step_at(ketu_first, age), std::nullopt) << age;
        EXPECT_EQ(step_at(ketu_first, age + 35), std::nullopt) << age + 35;
    }
    EXPECT_EQ(step_at(ketu_first, 284), (Step{cycle_year_shown, 284, 6, no_lord}));
    EXPECT_EQ(step_at(ketu_first, 290), (Step{cycle_year_shown, 290, 2, no_lord}));
    EXPECT_EQ(step_at(ketu_first, 319), (Step{cycle_year_shown, 319, 6, no_lord}));
    EXPECT_EQ(step_at(ketu_first, 325), (Step{cycle_year_shown, 325, 2, no_lord}));
}

TEST(DashaExceptions, KetuFirstStartsShukraAnewAt259) {
    EXPECT_EQ(step_at(ketu_first, 259), (Step{cycle_year_shown, 259, 3, no_lord}));
    EXPECT_EQ(step_at(ketu_first, 260), (Step{48, 258, 3, no_lord}));
}

TEST(DashaExceptions, KetuFirstKeepsShukraAt261) {
    EXPECT_EQ(step_at(ketu_first, 261), (Step{48, 258, 3, no_lord}));
    // Kuja's period, which begins then, is right from its second year on.
    EXPECT_EQ(step_at(ketu_first, 262), (Step{58, 261, 6, no_lord}));
}

TEST(DashaExceptions, KetuFirstFallsBackOnGuruFrom291To295) {
    for (int age = 291; age <= 295; ++age) {
        EXPECT_EQ(step_at(ketu_first, age), (Step{19, 284, 6, no_lord})) << age;
    }
    EXPECT_EQ(step_at(ketu_first, 296), (Step{cycle_year_shown, 296, 6, no_lord}));
}

TEST(DashaExceptions, KetuFirstFallsBackOnGuruFrom326To330) {
    for (int age = 326; age <= 330; ++age) {
        EXPECT_EQ(step_at(ketu_first, age), (Step{20, 319, 6, no_lord})) << age;
    }
    EXPECT_EQ(step_at(ketu_first, 331), (Step{cycle_year_shown, 331, 6, no_lord}));
}

TEST(DashaExceptions, RahuFirstForgets155) {
    EXPECT_EQ(step_at(rahu_first, 155), std::nullopt);
    EXPECT_EQ(step_at(rahu_first, 154), (Step{25, 150, 6, no_lord}));
    EXPECT_EQ(step_at(rahu_first, 156), (Step{cycle_year_shown, 156, 2, no_lord}));
}

TEST(DashaExceptions, ShaniFirstForgets2And3And268) {
    for (int age : {2, 3, 268}) EXPECT_EQ(step_at(shani_first, age), std::nullopt) << age;
    EXPECT_EQ(step_at(shani_first, 1), (Step{cycle_year_shown, 1, 6, no_lord}));
    EXPECT_EQ(step_at(shani_first, 4), (Step{1, 1, 6, no_lord}));
    EXPECT_EQ(step_at(shani_first, 269), (Step{cycle_year_shown, 269, 1, no_lord}));
}

TEST(DashaExceptions, BudhaFirstForgets343And344) {
    for (int age : {343, 344}) EXPECT_EQ(step_at(budha_first, age), std::nullopt) << age;
    EXPECT_EQ(step_at(budha_first, 342), (Step{cycle_year_shown, 342, 3, Lord::Shukra}));
    EXPECT_EQ(step_at(budha_first, 345), (Step{cycle_year_shown, 345, 6, Lord::Kuja}));
}

TEST(DashaExceptions, KujaFirstForgets171And288And300) {
    for (int age : {171, 288, 300}) EXPECT_EQ(step_at(kuja_first, age), std::nullopt) << age;
    EXPECT_EQ(step_at(kuja_first, 170), (Step{cycle_year_shown, 170, 2, Lord::Surya}));
    EXPECT_EQ(step_at(kuja_first, 172), (Step{cycle_year_shown, 172, 1, Lord::Chandra}));
    EXPECT_EQ(step_at(kuja_first, 287), (Step{cycle_year_shown, 287, 2, Lord::Budha}));
    EXPECT_EQ(step_at(kuja_first, 289), (Step{cycle_year_shown, 289, 6, Lord::Shani}));
    EXPECT_EQ(step_at(kuja_first, 299), (Step{39, 295, 6, Lord::Rahu}));
    EXPECT_EQ(step_at(kuja_first, 301), (Step{cycle_year_shown, 301, 3, Lord::Ketu}));
}

TEST(DashaExceptions, ShukraFirstStepsItsSuryaPeriodsByThreeMonths) {
    for (int turn = 1; turn <= 10; ++turn) {
        int const start = 33 + 35 * (turn - 1);
        EXPECT_EQ(step_at(shukra_first, start), (Step{cycle_year_shown, start, 3, Lord::Surya}))
            << start;
        if (start + 1 == 104) continue;  // whose column is odd too
        EXPECT_EQ(step_at(shukra_first, start + 1), (Step{70 + turn, start, 3, Lord::Surya}))
            << start + 1;
    }
}

TEST(DashaExceptions, ShukraFirstMovesTheColumnAt104) {
    EXPECT_EQ(step_at(shukra_first, 103), (Step{cycle_year_shown, 103, 3, Lord::Surya}));
    EXPECT_EQ(step_at(shukra_first, 104), (Step{73, 104, 3, Lord::Surya}));
    EXPECT_EQ(step_at(shukra_first, 105), (Step{cycle_year_shown, 105, 1, Lord::Chandra}));
}

TEST(DashaExceptions, ShukraFirstForgets242) {
    EXPECT_EQ(step_at(shukra_first, 242), std::nullopt);
    EXPECT_EQ(step_at(shukra_first, 241), (Step{67, 237, 6, Lord::Guru}));
    EXPECT_EQ(step_at(shukra_first, 243), (Step{cycle_year_shown, 243, 3, Lord::Surya}));
}

TEST(DashaExceptions, SuryaFirstDatesGuruByTheNextPeriodFrom241To245) {
    for (int age = 241; age <= 245; ++age) {
        EXPECT_EQ(step_at(surya_first, age), (Step{8, 240, 6, Lord::Guru})) << age;
    }
    EXPECT_EQ(ages_seigneurs(8, surya_first), 246);
    EXPECT_EQ(step_at(surya_first, 240), (Step{cycle_year_shown, 240, 6, Lord::Guru}));
    EXPECT_EQ(step_at(surya_first, 246), (Step{cycle_year_shown, 246, 2, Lord::Surya}));
    // A turn later the row is that of Guru himself.
    EXPECT_EQ(step_at(surya_first, 276), (Step{88, 275, 6, Lord::Guru}));
}

TEST(DashaExceptions, SuryaFirstForgets296To300And321And335) {
    for (int age : {296, 297, 298, 299, 300, 321, 335}) {
        EXPECT_EQ(step_at(surya_first, age), std::nullopt) << age;
    }
    EXPECT_EQ(step_at(surya_first, 295), (Step{cycle_year_shown, 295, 6, Lord::Shani}));
    EXPECT_EQ(step_at(surya_first, 301), (Step{cycle_year_shown, 301, 6, Lord::Rahu}));
    EXPECT_EQ(step_at(surya_first, 320), (Step{30, 319, 3, Lord::Surya}));
    EXPECT_EQ(step_at(surya_first, 322), (Step{cycle_year_shown, 322, 6, Lord::Kuja}));
    EXPECT_EQ(step_at(surya_first, 334), (Step{60, 330, 6, Lord::Shani}));
    EXPECT_EQ(step_at(surya_first, 336), (Step{cycle_year_shown, 336, 6, Lord::Rahu}));
}

// --- Whose name the cells bear ------------------------------------------------------------

/// The ages of a sequence at which its lord of the period and the lord assigned are not as
/// told.
template <typename Expected>
Mismatches assignments_other_than(int column, Expected expected) {
    Mismatches mismatches;
    for (WalkedYear const& year : walk(column, 350)) {
        auto const step = dasha_step(column, year.age);
        if (step && step->assigned != expected(year.lord)) mismatches.note("age ", year.age);
    }
    return mismatches;
}

TEST(AssignedLord, IsThatOfThePeriodWithBudhaKujaShukraAndChandraFirst) {
    for (int column : {budha_first, kuja_first, shukra_first, chandra_first}) {
        auto const others =
            assignments_other_than(column, [](Lord lord) { return std::optional{lord}; });
        EXPECT_EQ(others.count(), 0) << sequence_name(column) << others;
    }
}

TEST(AssignedLord, IsSuryaInShukrasAndKetusPeriodsWithSuryaFirst) {
    auto const others = assignments_other_than(surya_first, [](Lord lord) {
        return std::optional{lord == Lord::Shukra || lord == Lord::Ketu ? Lord::Surya : lord};
    });
    EXPECT_EQ(others.count(), 0) << others;
    // The step stays that of the lord himself.
    EXPECT_EQ(step_at(surya_first, 4), (Step{cycle_year_shown, 4, 3, Lord::Surya}));
    EXPECT_EQ(step_at(surya_first, 28), (Step{71, 27, 3, Lord::Surya}));
}

TEST(AssignedLord, IsGivenInRahusOwnPeriodAloneWithRahuFirst) {
    auto const others = assignments_other_than(rahu_first, [](Lord lord) {
        return lord == Lord::Rahu ? std::optional{Lord::Rahu} : std::nullopt;
    });
    EXPECT_EQ(others.count(), 0) << others;
    EXPECT_EQ(step_at(rahu_first, 6), (Step{1, 1, 6, Lord::Rahu}));
    EXPECT_EQ(step_at(rahu_first, 7), (Step{cycle_year_shown, 7, 3, no_lord}));
}

TEST(AssignedLord, IsNeverGivenWithGuruKetuOrShaniFirst) {
    for (int column : {guru_first, ketu_first, shani_first}) {
        auto const others = assignments_other_than(column, [](Lord) { return no_lord; });
        EXPECT_EQ(others.count(), 0) << sequence_name(column) << others;
    }
}

TEST(RepairsLeapDays, RahusSequenceAlone) {
    for (int column = 1; column <= 9; ++column) {
        EXPECT_EQ(repairs_leap_days(column), column == rahu_first) << sequence_name(column);
    }
}

// --- Worked by hand -----------------------------------------------------------------------

TEST(DashaStep, TheFirstAgeIsTheFirstPeriodInTheSunsCell) {
    for (int column = 1; column <= 9; ++column) {
        auto const step = dasha_step(column, 1);
        ASSERT_TRUE(step.has_value());
        EXPECT_EQ(step->date_row, std::nullopt);
        for (int sun_cell = 1; sun_cell <= 12; ++sun_cell) {
            EXPECT_EQ(cell_of_age(sun_cell, step->column_age), sun_cell);
        }
    }
}

TEST(DashaStep, Age36IsTheFirstPeriodAgainElevenCellsBack) {
    for (int column = 1; column <= 9; ++column) {
        auto const first = dasha_step(column, 1);
        auto const again = dasha_step(column, 36);
        ASSERT_TRUE(first && again);
        EXPECT_EQ(again->months, first->months);
        EXPECT_EQ(again->column_age, 36);
        EXPECT_EQ(cell_of_age(12, again->column_age), 11);
        EXPECT_EQ(cell_of_age(1, again->column_age), 12);
    }
}

TEST(DashaStep, FromOnePeriodToTheNextTheCellMovesByTheYearsOfTheFirst) {
    for (int column = 1; column <= 9; ++column) {
        auto const life = walk(column, 35);  // the first turn, where no column is odd
        for (WalkedYear const& year : life) {
            if (year.rank != year.years || year.age == 35) continue;
            auto const next = dasha_step(column, year.age + 1);
            ASSERT_TRUE(next.has_value());
            EXPECT_EQ(next->column_age - year.start_age, year.years)
                << sequence_name(column) << ", age " << year.age;
        }
    }
}

TEST(DashaStep, AChandraPeriodEndsElevenMonthsAfterItsStart) {
    auto const step = dasha_step(surya_first, 3);
    ASSERT_TRUE(step.has_value());
    EXPECT_EQ(step->months, 1);
    EXPECT_EQ(write_date(add_months(read_date("15/03/1973").value(), 11 * step->months)),
              "15/02/1974");
}

TEST(DashaStep, TheLastAgesOfGuruFirstAreKetus) {
    EXPECT_EQ(step_at(guru_first, 348), (Step{cycle_year_shown, 348, 3, no_lord}));
    EXPECT_EQ(step_at(guru_first, 349), (Step{90, 348, 3, no_lord}));
    EXPECT_EQ(step_at(guru_first, 350), (Step{90, 348, 3, no_lord}));
}

// Born on 15/03/1970 in mansion 5, the sun in cell 1: Kuja comes first.
TEST(DashaStep, OfAPersonOfKuja) {
    EXPECT_EQ(sequence_of_mansion(5), kuja_first);
    EXPECT_EQ(step_at(kuja_first, 9), (Step{cycle_year_shown, 9, 6, Lord::Shani}));
    EXPECT_EQ(cell_of_age(1, 9), 9);
    constexpr std::array<char const*, 12> dates{
        "15/03/1979", "15/09/1979", "15/03/1980", "15/09/1980", "15/03/1981", "15/09/1981",
        "15/03/1982", "15/09/1982", "15/03/1983", "15/09/1983", "15/03/1984", "15/09/1984"};
    int months = 0;
    for (char const* date : dates) {
        EXPECT_EQ(write_date(add_months(read_date("15/03/1979").value(), months)), date);
        months += dasha_step(kuja_first, 9)->months;
    }
    EXPECT_EQ(step_at(kuja_first, 10), (Step{21, 9, 6, Lord::Shani}));
    EXPECT_EQ(1970 + ages_seigneurs(21, kuja_first), 1979);
    EXPECT_EQ(step_at(kuja_first, 15), (Step{cycle_year_shown, 15, 6, Lord::Rahu}));
    EXPECT_EQ(cell_of_age(1, 15), 3);
}

}  // namespace
}  // namespace navarun::test
