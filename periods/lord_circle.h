// The circle of the nine lords, 35 years a turn, and the nine sequences that start in it.
#pragma once

#include <array>
#include <numeric>
#include <optional>
#include <string_view>

#include "core/lords.h"

namespace navarun {

struct CircleRow {
    Lord lord;
    int years;  // duration; also the months from one cell to the next
    std::string_view capitals;
};

// After Guru the circle starts again at Surya.
// clang-format off
inline constexpr std::array<CircleRow, 9> circle{{
    {Lord::Surya,   2, "SURYA"},
    {Lord::Chandra, 1, "CHANDRA"},
    {Lord::Shukra,  3, "SHUKRA"},
    {Lord::Kuja,    6, "KUJA"},
    {Lord::Budha,   2, "BUDHA"},
    {Lord::Shani,   6, "SHANI"},
    {Lord::Rahu,    6, "RAHU"},
    {Lord::Ketu,    3, "KETU"},
    {Lord::Guru,    6, "GURU"},
}};
// clang-format on

inline constexpr int years_of_turn = 35;
inline constexpr int nombre_cycles = 10;
inline constexpr int greatest_age = years_of_turn * nombre_cycles;

static_assert(std::accumulate(circle.begin(), circle.end(), 0,
                              [](int sum, CircleRow const& row) { return sum + row.years; }) ==
              years_of_turn);

/// Place of a lord in the circle, 1..9: the column of the sequence that he starts.
int circle_place(Lord lord);

/// The column of the sequence of a mansion, by its lord.
/// @return 1..9; empty for a number outside 1..27.
std::optional<int> sequence_of_mansion(int mansion);

/// `ages_seigneurs`: the age at which a period starts. The ten turns of one period lie in ten
/// neighbouring rows.
/// @param row     1..90
/// @param column  1..9, the sequence
/// Other ones are programming errors.
int ages_seigneurs(int row, int column);

/// A period of a sequence.
struct Period {
    int row;  // of ages_seigneurs, 1..90 (and on, beyond the tenth turn)
    int start_age;
    Lord lord;
    int years;
    int rank;  // which year of the period the age is, from 1
};

/// The period in which `age` falls.
/// REQUIRES 1 <= column <= 9 and age >= 1.
Period period_at(int column, int age);

}  // namespace navarun
