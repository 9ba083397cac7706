// The grid reduced to the three selected cycles.
#pragma once

namespace navarun {

class Program;

/// Ends the reduced view where it is on.
void CyclePartiel_annule(Program& program);

/// The button switches the view.
void wire_partial_cycle(Program& program);

}  // namespace navarun
