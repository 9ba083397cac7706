// The units of the screen model.
#pragma once

namespace navarun::screen {

inline constexpr int twips_per_inch = 1440;
inline constexpr int twips_per_pixel = 15;

}  // namespace navarun::screen
