// The toolkit's application, set up as the program wants it.
#pragma once

#include <QApplication>

namespace navarun::desktop {

/// French words, the fonts' stand-ins, the style. Call once, on the one application.
void set_up(QApplication& application);

}  // namespace navarun::desktop
