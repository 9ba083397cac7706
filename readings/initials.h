// The initials of a person, and the text that each letter has.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace navarun {

/// The text of a capital letter A to Z without accent; empty for anything else.
std::optional<std::string_view> letter_text(std::string_view letter);

/// The two or three initials of a person, capitals, in the order in which they are read: first
/// name, second given name where the first name has a separator (blank, hyphen or full stop),
/// last name. An initial may be empty or no letter of the table.
std::vector<std::string> initials_of(std::string_view first_name, std::string_view last_name);

}  // namespace navarun
