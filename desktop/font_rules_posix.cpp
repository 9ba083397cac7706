// Some dozens of files, by the library that the toolkit asks too.
#include <fontconfig/fontconfig.h>

#include "desktop/font_rules.h"

namespace navarun::desktop {

// Where it fails, the toolkit fares no better and goes on without.
void read_font_rules() { FcInit(); }

}  // namespace navarun::desktop
