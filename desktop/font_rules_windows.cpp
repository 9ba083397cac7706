// The system has read them when it started.
#include "desktop/font_rules.h"

namespace navarun::desktop {

void read_font_rules() {}

}  // namespace navarun::desktop
