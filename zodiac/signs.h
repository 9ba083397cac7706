// The twelve signs: names, elements and texts. A sign's number is its cell of the grid.
#pragma once

#include <string_view>

namespace navarun {

struct Sign {
    std::string_view name;
    std::string_view element;  // as it is set behind a palace's heading
    std::string_view text;
};

/// @param number  1..12; another one is a programming error.
Sign const& sign(int number);

}  // namespace navarun
