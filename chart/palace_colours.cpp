// The mark of unsaved changes.
#include "chart/palace_colours.h"

#include "shell/image_store.h"
#include "shell/program.h"

namespace navarun {

void couleur_Disk_Rouge_Vert(Program& program) {
    program.form1.Command_Disk_Vert.Picture = picture::unsaved;
}

}  // namespace navarun
