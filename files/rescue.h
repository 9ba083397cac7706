// What a fatal error leaves of a consultation with unsaved changes.
#pragma once

#include <string>

namespace navarun {

class Program;

/// Keeps the consultation as its fields show it as a record of the active folder, under a name
/// that no other record bears.
/// @return what the report of the error says of it. Never throws.
std::string rescue_consultation(Program& program);

}  // namespace navarun
