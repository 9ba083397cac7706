// The nine lords: their numbers, names and colours.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "shell/screen/colour.h"

namespace navarun {

/// The numbers by which every part of the system knows the lords.
enum class Lord : std::uint8_t {
    Surya = 1,
    Chandra,
    Guru,
    Rahu,
    Budha,
    Shukra,
    Ketu,
    Shani,
    Kuja,
};

constexpr int number_of(Lord lord) { return static_cast<int>(lord); }

struct LordRow {
    std::string_view name;
    std::string_view short_name;
    screen::Colour back;
    screen::Colour fore;
};

// Lords 1 to 9.
// clang-format off
inline constexpr std::array<LordRow, 9> lords{{
    {"Surya",   "Su", screen::standard_colour(4),    screen::standard_colour(15)},
    {"Chandra", "Ca", screen::standard_colour(15),   screen::standard_colour(0)},
    {"Guru",    "Gu", screen::Colour{255, 255, 128}, screen::standard_colour(0)},
    {"Rahu",    "Ra", screen::standard_colour(7),    screen::standard_colour(0)},
    {"Budha",   "Bu", screen::Colour{128, 255, 128}, screen::standard_colour(0)},
    {"Shukra",  "Sk", screen::standard_colour(15),   screen::standard_colour(0)},
    {"Ketu",    "Ke", screen::standard_colour(7),    screen::standard_colour(0)},
    {"Shani",   "Sa", screen::standard_colour(0),    screen::standard_colour(15)},
    {"Kuja",    "Ku", screen::Colour{255, 128, 128}, screen::standard_colour(0)},
}};
// clang-format on

constexpr LordRow const& row_of(Lord lord) {
    return lords[static_cast<std::size_t>(number_of(lord) - 1)];
}

/// What short names add to a lord's place in `noms_seigneurs`.
inline constexpr int short_names = 9;

/// The nine names in full, then the nine short ones.
inline constexpr std::array<std::string_view, 18> noms_seigneurs = [] {
    std::array<std::string_view, 18> names{};
    for (std::size_t i = 0; i < lords.size(); ++i) {
        names[i] = lords[i].name;
        names[i + short_names] = lords[i].short_name;
    }
    return names;
}();

/// A sum of the person's numbers as a lord's number: modulo 9, and 9 for 0.
constexpr int reduced_to_nine(int sum) { return sum % 9 == 0 ? 9 : sum % 9; }

}  // namespace navarun
