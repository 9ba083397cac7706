// The mark on the step of the period that is in progress, and the step picked by hand.
#pragma once

namespace navarun {

class Program;

/// Marks the step of the period in progress: the one of today where today lies in the cycle
/// year shown, else the one that starts with that year. `colonne_dasha` becomes, in the first
/// case, the cell after the one marked.
void Trouve_ActuelMahaDasha(Program& program);

/// A click on a period's cell selects it.
void wire_current_period(Program& program);

}  // namespace navarun
