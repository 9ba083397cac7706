// The coloured view of the palaces, and the mark of unsaved changes.
#pragma once

namespace navarun {

class Program;

/// Takes the boxes off: those of all twelve cells where the coloured view is on, else that of
/// the sun's cell alone.
void take_boxes_off(Program& program);

/// Turns the diskette red: the record has changes to be saved.
void couleur_Disk_Rouge_Vert(Program& program);

/// The button switches between the sun's cell in a green box and all twelve boxes coloured by
/// quality.
void wire_palace_colours(Program& program);

}  // namespace navarun
