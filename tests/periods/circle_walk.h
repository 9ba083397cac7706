// The life of a person walked through year by year, from the first lord on, ten turns round the
// circle: the plain count that practitioners do by hand, and against which the tables are held.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "core/lords.h"

namespace navarun::test {

struct LordYears {
    Lord lord;
    int years;
};

// clang-format off
inline constexpr std::array<LordYears, 9> circle_by_hand{{
    {Lord::Surya,   2},
    {Lord::Chandra, 1},
    {Lord::Shukra,  3},
    {Lord::Kuja,    6},
    {Lord::Budha,   2},
    {Lord::Shani,   6},
    {Lord::Rahu,    6},
    {Lord::Ketu,    3},
    {Lord::Guru,    6},
}};
// clang-format on

/// One year of a life.
struct WalkedYear {
    int age;
    Lord lord;
    int years;      // of the whole period
    int rank;       // which of them this year is, from 1
    int start_age;  // of the period
    int period;     // 1..9, counted from the first lord
    int turn;       // from 1
    int row() const { return 10 * (period - 1) + turn; }
};

/// The years of the ages 1 to `last_age`, the first at 0.
/// @param column  1..9, the place in the circle of the lord of the birth.
inline std::vector<WalkedYear> walk(int column, int last_age) {
    std::vector<WalkedYear> life;
    int age = 1;
    for (int turn = 1; age <= last_age; ++turn) {
        for (int period = 1; period <= 9 && age <= last_age; ++period) {
            auto const place = static_cast<std::size_t>((column - 1 + period - 1) % 9);
            auto const [lord, years] = circle_by_hand.at(place);
            int const start_age = age;
            for (int rank = 1; rank <= years && age <= last_age; ++rank, ++age) {
                life.push_back({age, lord, years, rank, start_age, period, turn});
            }
        }
    }
    return life;
}

/// The sequences by name, as their columns number them.
enum Sequence : int {
    surya_first = 1,
    chandra_first,
    shukra_first,
    kuja_first,
    budha_first,
    shani_first,
    rahu_first,
    ketu_first,
    guru_first,
};

inline std::string sequence_name(int column) {
    constexpr std::array<char const*, 9> names{"Surya", "Chandra", "Shukra", "Kuja", "Budha",
                                               "Shani", "Rahu",    "Ketu",   "Guru"};
    return names.at(static_cast<std::size_t>(column - 1));
}

}  // namespace navarun::test
