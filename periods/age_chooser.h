// The window from which an age is chosen, without scrolling.
#pragma once

namespace navarun {

class Program;

/// Closes the window where it is open.
void close_age_chooser(Program& program);

/// The age's label opens the window; its cells choose, its arrows turn the four pages of ages.
void wire_age_chooser(Program& program);

}  // namespace navarun
