// The mark of unsaved changes.
#pragma once

namespace navarun {

class Program;

/// Turns the diskette red: the record has changes to be saved.
void couleur_Disk_Rouge_Vert(Program& program);

}  // namespace navarun
