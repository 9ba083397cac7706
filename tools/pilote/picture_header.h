// The size of a picture, as the header of its file tells it.
#pragma once

#include <optional>
#include <string_view>

#include "shell/platform.h"

namespace navarun::pilot {

/// @param bytes  a GIF, BMP or JPEG file; empty for anything else and for a size of 0.
std::optional<PictureSize> size_in_header(std::string_view bytes);

}  // namespace navarun::pilot
