// The readings of Dinanka, Purnanka and the lunar mansion.
#pragma once

#include <optional>
#include <string>

namespace navarun {

/// @param number  1..9; another one is a programming error.
std::string dinanka_reading(int number);
/// @param number  1..9; another one is a programming error.
std::string purnanka_reading(int number);
/// @param number  1..27; empty for any other.
std::optional<std::string> mansion_reading(int number);

}  // namespace navarun
