// The toolkit's application, set up as the program wants it.
#pragma once

#include <QApplication>
#include <filesystem>

namespace navarun::desktop {

/// French words, the fonts' stand-ins, the style. Call once, on the one application.
void set_up(QApplication& application);

/// The folder of the program as it was started: links are not followed, so that where a link
/// was started, the data stand beside the link.
std::filesystem::path application_folder(char const* started_as);

}  // namespace navarun::desktop
