// The running program as it was started.
#pragma once

#include <QString>
#include <filesystem>

namespace navarun::desktop {

/// The folder of the program as it was started: links are not followed, so that where a link
/// was started, the data stand beside the link.
std::filesystem::path application_folder(char const* started_as);

/// Its own file, by the same path, so that a link started once more keeps its own folder.
QString started_program();

}  // namespace navarun::desktop
