// Start ages of the sequences, and the period of an age.
#include "periods/lord_circle.h"

#include <algorithm>
#include <cstddef>

#include "zodiac/mansions.h"

namespace navarun {

namespace {

// One row a sequence, in the order of the circle: the age at which each of its nine periods
// starts in the first turn.
// clang-format off
constexpr std::array<std::array<int, 9>, 9> start_ages{{
    { 1,  3,  4,  7, 13, 15, 21, 27, 30},  // Surya
    { 1,  2,  5, 11, 13, 19, 25, 28, 34},  // Chandra
    { 1,  4, 10, 12, 18, 24, 27, 33, 35},  // Shukra
    { 1,  7,  9, 15, 21, 24, 30, 32, 33},  // Kuja
    { 1,  3,  9, 15, 18, 24, 26, 27, 30},  // Budha
    { 1,  7, 13, 16, 22, 24, 25, 28, 34},  // Shani
    { 1,  7, 10, 16, 18, 19, 22, 28, 30},  // Rahu
    { 1,  4, 10, 12, 13, 16, 22, 24, 30},  // Ketu
    { 1,  7,  9, 10, 13, 19, 21, 27, 33},  // Guru
}};
// clang-format on

constexpr bool start_ages_add_the_durations_up() {
    for (std::size_t first = 0; first < circle.size(); ++first) {
        int age = 1;
        for (std::size_t period = 0; period < circle.size(); ++period) {
            if (start_ages[first][period] != age) return false;
            age += circle[(first + period) % circle.size()].years;
        }
    }
    return true;
}
static_assert(start_ages_add_the_durations_up());

// By the number of the lord.
constexpr auto places = [] {
    std::array<int, circle.size()> places_by_lord{};
    for (std::size_t i = 0; i < circle.size(); ++i) {
        places_by_lord[static_cast<std::size_t>(number_of(circle[i].lord) - 1)] =
            static_cast<int>(i) + 1;
    }
    return places_by_lord;
}();

}  // namespace

int circle_place(Lord lord) { return places[static_cast<std::size_t>(number_of(lord) - 1)]; }

std::optional<int> sequence_of_mansion(int number) {
    if (number < 1 || number > mansion_count) return {};
    return circle_place(mansion(number).lord);
}

int ages_seigneurs(int row, int column) {
    int const period = (row - 1) / nombre_cycles;
    int const turn = (row - 1) % nombre_cycles;
    return start_ages.at(static_cast<std::size_t>(column - 1))
               .at(static_cast<std::size_t>(period)) +
           years_of_turn * turn;
}

Period period_at(int column, int age) {
    auto const& starts = start_ages.at(static_cast<std::size_t>(column - 1));
    int const age_in_turn = (age - 1) % years_of_turn + 1;
    int const turn = (age - 1) / years_of_turn;
    auto const after = std::ranges::upper_bound(starts, age_in_turn);
    int const period = static_cast<int>(after - starts.begin()) - 1;  // 0..8
    auto const& lord = circle[static_cast<std::size_t>(column - 1 + period) % circle.size()];
    int const start = starts[static_cast<std::size_t>(period)];
    return {
        .row = nombre_cycles * period + turn + 1,
        .start_age = start + years_of_turn * turn,
        .lord = lord.lord,
        .years = lord.years,
        .rank = age_in_turn - start + 1,
    };
}

}  // namespace navarun
