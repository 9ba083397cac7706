// The report of the personality, shown in the plain text viewer.
#pragma once

#include <string>

namespace navarun {

class Program;

/// The report as one text: names, mansion, initials, weekday, sign and numbers.
std::string personality_report(Program& program);

/// The menu entry writes the report into a passing file, hands it to the viewer and deletes it.
void wire_personality_report(Program& program);

}  // namespace navarun
