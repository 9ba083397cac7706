// The chart's picture and the colours of the window that go with it, and the arrows drawn on
// it.
#pragma once

namespace navarun {

class Program;

/// Applies the colour scheme `couleur_kundali`: writes the settings, colours the window, moves
/// the check mark, loads the chart. A scheme that does not exist is written all the same, and
/// then ends the run with a fatal error, as its picture is missing.
void Choix_Couleur_Kundali(Program& program);

/// Loads the chart's picture anew, which wipes what was drawn on it.
void load_chart(Program& program);

/// Where an arrow stands on the chart: wipes the chart and hides the arrow window.
void efface_fleche(Program& program);

/// The four scheme entries of the menu, and the mouse on the chart.
void wire_kundali(Program& program);

}  // namespace navarun
