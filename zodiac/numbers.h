// Dinanka and Purnanka, the two numbers of a birth date.
#pragma once

#include <string_view>

namespace navarun {

/// The number of the birth day, 1..9. Here and below a text that does not begin with a digit
/// counts as 0, and a sum of 0 is the number 9.
int dinanka_of(std::string_view day);
/// The number of the whole date, 1..9. The year counts as two numbers of two digits.
int purnanka_of(std::string_view day, std::string_view month, std::string_view century,
                std::string_view year);

}  // namespace navarun
