// Windows-1252, the code page of the practice's files. Inside the program texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace navarun {

/// `character` where the code page has it, else its nearest letter in it (l for ł), else "?".
char32_t nearest_in_code_page(char32_t character);
/// The same for each character of a text.
std::string fitted_to_code_page(std::string_view text);

/// The bytes of `text`; a character that the code page lacks becomes its nearest letter or "?".
std::string to_code_page(std::string_view text);
/// The text of `bytes`. The five bytes without a meaning are the control characters of the same
/// number, so that every byte comes back as it was.
std::string from_code_page(std::string_view bytes);

}  // namespace navarun
