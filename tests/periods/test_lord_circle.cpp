// The circle of the lords, the nine sequences and the table of start ages.
#include <array>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "periods/lord_circle.h"
#include "tests/core/mismatches.h"
#include "tests/periods/circle_walk.h"

namespace navarun::test {
namespace {

struct CirclePlace {
    int place;
    Lord lord;
    int lord_number;
    int years;
    std::string_view capitals;
    friend std::ostream& operator<<(std::ostream& out, CirclePlace const& row) {
        return out << row.capitals;
    }
};
// clang-format off
constexpr CirclePlace circle_places[] = {
    {1, Lord::Surya,   1, 2, "SURYA"},
    {2, Lord::Chandra, 2, 1, "CHANDRA"},
    {3, Lord::Shukra,  6, 3, "SHUKRA"},
    {4, Lord::Kuja,    9, 6, "KUJA"},
    {5, Lord::Budha,   5, 2, "BUDHA"},
    {6, Lord::Shani,   8, 6, "SHANI"},
    {7, Lord::Rahu,    4, 6, "RAHU"},
    {8, Lord::Ketu,    7, 3, "KETU"},
    {9, Lord::Guru,    3, 6, "GURU"},
};
// clang-format on

class Circle : public testing::TestWithParam<CirclePlace> {};
TEST_P(Circle, HasItsLordAtThisPlace) {
    CirclePlace const& expected = GetParam();
    CircleRow const& row = circle.at(static_cast<std::size_t>(expected.place - 1));
    EXPECT_EQ(row.lord, expected.lord);
    EXPECT_EQ(number_of(row.lord), expected.lord_number);
    EXPECT_EQ(row.years, expected.years);
    EXPECT_EQ(row.capitals, expected.capitals);
    EXPECT_EQ(circle_place(expected.lord), expected.place);
}
INSTANTIATE_TEST_SUITE_P(Lords, Circle, testing::ValuesIn(circle_places),
                         [](auto const& row) { return std::string{row.param.capitals}; });

TEST(Circle, TenTurnsOf35YearsReachAge350) {
    EXPECT_EQ(years_of_turn, 35);
    EXPECT_EQ(nombre_cycles, 10);
    EXPECT_EQ(greatest_age, 350);
}

struct StartAges {
    int column;
    std::array<int, 9> ages;
    friend std::ostream& operator<<(std::ostream& out, StartAges const& row) {
        return out << sequence_name(row.column);
    }
};
// clang-format off
constexpr StartAges start_ages[] = {
    {1, {1, 3, 4, 7, 13, 15, 21, 27, 30}},
    {2, {1, 2, 5, 11, 13, 19, 25, 28, 34}},
    {3, {1, 4, 10, 12, 18, 24, 27, 33, 35}},
    {4, {1, 7, 9, 15, 21, 24, 30, 32, 33}},
    {5, {1, 3, 9, 15, 18, 24, 26, 27, 30}},
    {6, {1, 7, 13, 16, 22, 24, 25, 28, 34}},
    {7, {1, 7, 10, 16, 18, 19, 22, 28, 30}},
    {8, {1, 4, 10, 12, 13, 16, 22, 24, 30}},
    {9, {1, 7, 9, 10, 13, 19, 21, 27, 33}},
};
// clang-format on

class AgesSeigneurs : public testing::TestWithParam<StartAges> {};
TEST_P(AgesSeigneurs, TheTenTurnsOfAPeriodLieInNeighbouringRows) {
    StartAges const& expected = GetParam();
    for (int period = 1; period <= 9; ++period) {
        for (int turn = 1; turn <= 10; ++turn) {
            int const row = 10 * (period - 1) + turn;
            int const first_turn = expected.ages.at(static_cast<std::size_t>(period - 1));
            EXPECT_EQ(ages_seigneurs(row, expected.column), first_turn + 35 * (turn - 1))
                << "row " << row;
        }
    }
}
TEST_P(AgesSeigneurs, AgreeWithTheWalk) {
    int const column = GetParam().column;
    Mismatches mismatches;
    for (WalkedYear const& year : walk(column, 350)) {
        if (ages_seigneurs(year.row(), column) != year.start_age) {
            mismatches.note("age ", year.age, " row ", year.row());
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
}
TEST_P(AgesSeigneurs, EveryAgeHasItsPeriod) {
    int const column = GetParam().column;
    Mismatches mismatches;
    for (WalkedYear const& year : walk(column, 350)) {
        Period const period = period_at(column, year.age);
        if (period.row != year.row() || period.start_age != year.start_age ||
            period.lord != year.lord || period.years != year.years ||
            period.rank != year.rank) {
            mismatches.note("age ", year.age, ": row ", period.row, ", from ", period.start_age,
                            ", ", row_of(period.lord).name, ' ', period.rank, " of ",
                            period.years);
        }
    }
    EXPECT_EQ(mismatches.count(), 0) << mismatches;
}
INSTANTIATE_TEST_SUITE_P(Sequences, AgesSeigneurs, testing::ValuesIn(start_ages),
                         [](auto const& row) { return sequence_name(row.param.column); });

TEST(PeriodAt, BeyondTheTenthTurnTheCircleGoesOn) {
    for (int column = 1; column <= 9; ++column) {
        for (WalkedYear const& year : walk(column, 420)) {
            Period const period = period_at(column, year.age);
            EXPECT_EQ(period.start_age, year.start_age) << column << ", age " << year.age;
            EXPECT_EQ(period.lord, year.lord) << column << ", age " << year.age;
            EXPECT_EQ(period.rank, year.rank) << column << ", age " << year.age;
        }
    }
}

struct MansionSequence {
    int mansion;
    int column;
    friend std::ostream& operator<<(std::ostream& out, MansionSequence const& row) {
        return out << "mansion " << row.mansion;
    }
};
// clang-format off
constexpr MansionSequence mansion_sequences[] = {
    {3, surya_first},   {12, surya_first},   {21, surya_first},
    {4, chandra_first}, {13, chandra_first}, {22, chandra_first},
    {2, shukra_first},  {11, shukra_first},  {20, shukra_first},
    {5, kuja_first},    {14, kuja_first},    {23, kuja_first},
    {9, budha_first},   {18, budha_first},   {27, budha_first},
    {8, shani_first},   {17, shani_first},   {26, shani_first},
    {6, rahu_first},    {15, rahu_first},    {24, rahu_first},
    {1, ketu_first},    {10, ketu_first},    {19, ketu_first},
    {7, guru_first},    {16, guru_first},    {25, guru_first},
};
// clang-format on
static_assert(std::size(mansion_sequences) == 27);

class SequenceOfMansion : public testing::TestWithParam<MansionSequence> {};
TEST_P(SequenceOfMansion, IsThatOfItsLord) {
    EXPECT_EQ(sequence_of_mansion(GetParam().mansion), GetParam().column);
}
INSTANTIATE_TEST_SUITE_P(Mansions, SequenceOfMansion, testing::ValuesIn(mansion_sequences),
                         [](auto const& row) {
                             return "mansion_" + std::to_string(row.param.mansion);
                         });

TEST(SequenceOfMansion, ANumberThatIsNoMansionHasNone) {
    EXPECT_EQ(sequence_of_mansion(0), std::nullopt);
    EXPECT_EQ(sequence_of_mansion(28), std::nullopt);
    EXPECT_EQ(sequence_of_mansion(-3), std::nullopt);
}

}  // namespace
}  // namespace navarun::test
