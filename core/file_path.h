// Names of files as texts. Texts are UTF-8; the system's own names are bytes on one platform
// and UTF-16 on another, where the standard library would take a plain string for the code page
// of the machine. Every path of the program is made and read back here.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace navarun {

/// The path of that name. Never throws on a text that is no UTF-8: where names are bytes it is
/// taken as it stands, else each wrong byte becomes U+FFFD.
std::filesystem::path file_path(std::string_view text);

/// The name of that path, the inverse of file_path. Where names are UTF-16 half a pair of
/// surrogates becomes U+FFFD.
std::string path_text(std::filesystem::path const& path);

}  // namespace navarun
