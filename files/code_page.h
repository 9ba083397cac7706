// Windows-1252, the code page of the practice's files. Inside the program texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace navarun {

/// The bytes of `text`; a character that the code page lacks becomes "?".
std::string to_code_page(std::string_view text);
/// The text of `bytes`. The five bytes without a meaning are the control characters of the same
/// number, so that every byte comes back as it was.
std::string from_code_page(std::string_view bytes);

}  // namespace navarun
