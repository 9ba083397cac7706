// The palace of destiny: five facts of the column in which the age stands.
#pragma once

namespace navarun {

class Program;

/// Fills the window from the grid; the lord of destiny is computed.
void palaisDudestin(Program& program);

/// Closes the window, where it is open, and takes its menu mark off: whatever would make it
/// stale does.
void close_destiny_palace(Program& program);

/// The menu entry opens and closes the window.
void wire_destiny_palace(Program& program);

}  // namespace navarun
