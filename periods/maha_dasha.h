// The period in progress on the grid: one lord in all twelve cells, his years in twelve steps.
#pragma once

namespace navarun {

class Program;

/// Shows the period in which the current age falls, and marks the step in progress. Where the
/// person's sequence has no case for the age, the cells keep the period that they show.
/// Leaves `colonne_dasha` and, as its own work value, `date_annee_courante`.
void Maha_Dasha(Program& program);

}  // namespace navarun
