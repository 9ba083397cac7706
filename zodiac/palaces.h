// The twelve palaces, counted from the sun's cell round the chart.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/screen/colour.h"

namespace navarun {

enum class Quality : std::uint8_t { benefic, malefic, vedha, unstable, neutral };

struct QualityRow {
    std::string_view letter;
    std::string_view tooltip;
    screen::Colour back;
};

/// @param palace  1..12; another one is a programming error.
Quality quality_of_palace(int palace);
QualityRow const& row_of(Quality quality);

/// The number as a cell shows it.
/// @param palace  1..12; another one is a programming error.
std::string_view palace_number(int palace);

/// What a palace stands for: three headed blocks.
/// @param palace  1..12; another one is a programming error.
std::string description_palais(int palace);

/// The line of overlines that parts the blocks.
std::string const& palace_rule();

}  // namespace navarun
