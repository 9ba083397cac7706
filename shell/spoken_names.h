// What a screen reader says for each control: the table of the names that no caption gives, and
// the sentences that are composed from what the window shows.
#pragma once

#include "shell/screen/screen.h"

namespace navarun {

class Program;

/// Gives the controls of all windows their names. Once, when the windows stand. A control that
/// the table does not know is called by its caption, else by its tool tip.
void wire_spoken_names(Program& program);

/// Brings the composed names of the windows that are shown up to date. For whoever shows them,
/// before it asks what has changed.
void follow_spoken_names(screen::Screen& screen);

}  // namespace navarun
