// What the designs of the windows share: their fonts, grounds and bands, as they stand before a
// colour scheme is applied, and the indexes of their rows.
#pragma once

#include <vector>

#include "shell/screen/colour.h"
#include "shell/screen/design.h"

namespace navarun::window_design {

constexpr screen::Font arial(double size) { return {.name = "Arial", .size = size}; }
constexpr screen::Font narrow(double size) { return {.name = "Arial Narrow", .size = size}; }

inline constexpr screen::Colour azure_small_window{0xB4CEFC};
inline constexpr screen::Colour azure_list{0xCCE2FC};
inline constexpr screen::Colour title_band{0x2C8EDC};

/// A window that opens at `place`, seen from the upper left corner of the main one.
constexpr screen::Design window(screen::Place place, std::string_view caption) {
    return {.place = place, .text = caption, .back = azure_small_window, .visible = false};
}

/// The indexes of a row of controls, both inside; none where `last` lies before `first`.
inline std::vector<int> indexes(int first, int last) {
    std::vector<int> all;
    for (int i = first; i <= last; ++i) all.push_back(i);
    return all;
}

/// White words on the strong colour.
constexpr screen::Design title(screen::Place place, screen::Font font) {
    return {.place = place,
            .font = font,
            .fore = screen::white,
            .back = title_band,
            .opaque = true,
            .align = screen::Alignment::centre};
}

}  // namespace navarun::window_design
