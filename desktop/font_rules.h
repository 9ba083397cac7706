// The rules by which the system finds fonts.
#pragma once

namespace navarun::desktop {

/// Reads them where that takes long enough to be worth doing ahead; on any thread, and before
/// the toolkit stands. Whoever asks for a font reads them otherwise.
void read_font_rules();

}  // namespace navarun::desktop
