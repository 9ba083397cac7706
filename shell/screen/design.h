// What a control is designed as: place, font and first values.
#pragma once

#include <cstdint>
#include <string_view>

#include "shell/screen/colour.h"
#include "shell/screen/picture.h"

namespace navarun::screen {

/// Place in the container's own coordinates, in twips (15 to the pixel).
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct Font {
    std::string_view name = "MS Sans Serif";
    double size = 9.75;  // points
    bool bold = false;
    bool italic = false;
};

enum class Alignment : std::uint8_t { left, centre };

/// The design-time values of a control, written once where the control is declared.
struct Design {
    Place place{};
    std::string_view text{};
    Font font{};
    Colour fore = black;
    Colour back = white;
    bool opaque = false;
    bool border = false;
    Alignment align = Alignment::left;
    bool visible = true;
    std::string_view tooltip{};
    std::string_view tag{};
    Picture picture{};
    bool stretched = false;    // a picture fills its control
    bool read_only = false;    // a text that only the program writes
    bool digits_only = false;  // a date field: what is no digit never enters
    int max_length = 0;        // characters the user may enter; 0 for no limit
    int minimum = 0;           // scroll bars
    int maximum = 0;
};

}  // namespace navarun::screen
