// The one operation that runs the whole calculation.
#pragma once

namespace navarun {

class Program;

/// Generates the grid of the consultation on screen. A birth date that cannot be read is told
/// in a message box, and nothing else happens. The age is not touched.
void generate(Program& program);

/// Clears the cells for a new generation: empties the lord of the year, hides the palaces,
/// takes emphasis and colours back; then the grid counts as true.
void cycle(Program& program);

/// A click on Command2 generates.
void wire_generate(Program& program);

}  // namespace navarun
