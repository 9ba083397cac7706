// Emptying the consultation for a new person.
#pragma once

namespace navarun {

class Program;

/// Empties the fields and shows the grid of someone born today.
void reset(Program& program);

/// The button begins anew, or deletes while a list is in front, by the picture that it bears.
void wire_reset(Program& program);

}  // namespace navarun
