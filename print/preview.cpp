// Closing the preview.
#include "print/preview.h"

#include "shell/program.h"

namespace navarun {

void apercu_impression_Invisible(Program& program) { program.form1.Picture2.Visible = false; }

}  // namespace navarun
