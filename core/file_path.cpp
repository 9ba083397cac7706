// UTF-8 to the system's names and back.
#include "core/file_path.h"

#include <type_traits>

#include "core/text.h"

namespace navarun {

namespace {

using Native = std::filesystem::path::string_type;
using Unit = std::filesystem::path::value_type;
constexpr bool names_are_bytes = std::is_same_v<Unit, char>;

constexpr char32_t first_of_two_units = 0x10000;
constexpr bool high_surrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool low_surrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Both are for the system whose names are no bytes; elsewhere they are only read by the
// compiler.
[[maybe_unused]] void append(Native& units, char32_t character) {
    if (character < first_of_two_units) {
        units.push_back(static_cast<Unit>(character));
        return;
    }
    char32_t const rest = character - first_of_two_units;
    units.push_back(static_cast<Unit>(0xD800 + (rest >> 10U)));
    units.push_back(static_cast<Unit>(0xDC00 + (rest & 0x3FFU)));
}

[[maybe_unused]] std::string text_of(Native const& units) {
    constexpr char32_t replacement_character = 0xFFFD;
    std::string result;
    for (std::size_t i = 0; i < units.size(); ++i) {
        char32_t character = static_cast<char32_t>(units[i]);
        char32_t const next = i + 1 < units.size() ? static_cast<char32_t>(units[i + 1]) : 0;
        if (high_surrogate(character) && low_surrogate(next)) {
            character = first_of_two_units + ((character - 0xD800) << 10U) + (next - 0xDC00);
            ++i;
        } else if (high_surrogate(character) || low_surrogate(character)) {
            character = replacement_character;
        }
        result += text::encoded(character);
    }
    return result;
}

}  // namespace

std::filesystem::path file_path(std::string_view text) {
    if constexpr (names_are_bytes) {
        return std::filesystem::path{text};
    } else {
        Native units;
        for (char32_t const character : text::characters(text)) append(units, character);
        return std::filesystem::path{units};
    }
}

std::string path_text(std::filesystem::path const& path) {
    if constexpr (names_are_bytes) {
        return path.string();
    } else {
        return text_of(path.native());
    }
}

}  // namespace navarun
