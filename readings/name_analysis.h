// The reading of the names by their initials.
#pragma once

namespace navarun {

class Program;

/// Assembles the texts of the initials of the names on screen. A letter without a text of its
/// own repeats the one looked up last. With no name at all it says so for a moment in the place
/// of the weekday's reading.
void initial_Text(Program& program);

}  // namespace navarun
