// The coloured view of the palaces, and the mark of unsaved changes.
#pragma once

#include "shell/screen/control.h"

namespace navarun {

class Program;

/// Gives a palace's cell its box, or takes it: thin border and opaque ground.
void set_box(screen::Label& palace, bool boxed);

/// Takes the boxes off: those of all twelve cells where the coloured view is on, else that of
/// the sun's cell alone.
void take_boxes_off(Program& program);

/// Switches between the sun's cell in a green box and all twelve boxes coloured by quality.
void categorie_couleur(Program& program);

/// Turns the diskette red: the record has changes to be saved.
void couleur_Disk_Rouge_Vert(Program& program);

/// The button switches the view.
void wire_palace_colours(Program& program);

}  // namespace navarun
