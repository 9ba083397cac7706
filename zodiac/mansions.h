// The 27 lunar mansions (Nakshatra): names, lords and where they lie in the signs.
#pragma once

#include <optional>
#include <string_view>

#include "core/lords.h"

namespace navarun {

struct Mansion {
    std::string_view name;
    Lord lord;
};

inline constexpr int mansion_count = 27;

/// @param number  1..27; another one is a programming error.
Mansion const& mansion(int number);

/// The mansion of a sign and a position in it.
/// @return 1..27; empty where sign lies outside 1..12 or the position outside 0..29.
std::optional<int> mansion_at(int sign, int degree);

}  // namespace navarun
