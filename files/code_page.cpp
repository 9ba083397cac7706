// The table of the code page.
#include "files/code_page.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace navarun {

namespace {

// Bytes 128 to 159; the others stand for the characters of their own number.
constexpr std::array<char32_t, 32> upper_controls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char32_t first_upper_control = 128;

char byte_of(char32_t character) {
    if (character < first_upper_control || (character >= 160 && character < 256)) {
        return static_cast<char>(character);
    }
    auto const found = std::ranges::find(upper_controls, character);
    if (found == upper_controls.end()) return '?';
    return static_cast<char>(first_upper_control +
                             static_cast<char32_t>(found - upper_controls.begin()));
}

}  // namespace

std::string to_code_page(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (char32_t const character : text::characters(text)) bytes.push_back(byte_of(character));
    return bytes;
}

std::string from_code_page(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (char const c : bytes) {
        char32_t const number = static_cast<unsigned char>(c);
        bool const tabled = number >= first_upper_control && number < 160;
        text += text::encoded(tabled ? upper_controls[number - first_upper_control] : number);
    }
    return text;
}

}  // namespace navarun
