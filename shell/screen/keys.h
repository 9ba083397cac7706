// The codes of the keys that mean something of their own, as a handler of KeyDown gets them.
#pragma once

namespace navarun::key {

inline constexpr int enter = 13;
inline constexpr int control = 17;
inline constexpr int escape = 27;
inline constexpr int erase = 46;

}  // namespace navarun::key
