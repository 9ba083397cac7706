// Characters, case and numbers of texts.
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace navarun::text {

namespace {

constexpr char32_t replacement_character = 0xFFFD;

// Letters beyond ASCII whose other case is not 32 away, small then capital.
constexpr std::array<std::pair<char32_t, char32_t>, 4> odd_pairs{{
    {0x0153, 0x0152},  // oe
    {0x0161, 0x0160},  // s with caron
    {0x017E, 0x017D},  // z with caron
    {0x00FF, 0x0178},  // y with diaeresis
}};

constexpr bool small_letter_of_latin_1(char32_t c) {
    return c >= 0xE0 && c <= 0xFE && c != 0xF7;  // 0xF7 is the division sign
}

// Nearly every character: no table needs to be asked about it.
constexpr bool is_ascii(char32_t c) { return c < 0x80; }

char32_t upper(char32_t c) {
    if (is_ascii(c)) return c >= U'a' && c <= U'z' ? c - 32 : c;
    if (small_letter_of_latin_1(c)) return c - 32;
    for (auto const& [small, capital] : odd_pairs) {
        if (c == small) return capital;
    }
    return c;
}

char32_t lower(char32_t c) {
    if (is_ascii(c)) return c >= U'A' && c <= U'Z' ? c + 32 : c;
    if (small_letter_of_latin_1(c + 32) && c >= 0xC0) return c + 32;
    for (auto const& [small, capital] : odd_pairs) {
        if (c == capital) return small;
    }
    return c;
}

void append(std::string& text, char32_t c) {
    auto const byte = [&](char32_t value) { text.push_back(static_cast<char>(value)); };
    if (is_ascii(c)) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xC0 | (c >> 6));
        byte(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        byte(0xE0 | (c >> 12));
        byte(0x80 | ((c >> 6) & 0x3F));
        byte(0x80 | (c & 0x3F));
    } else {
        byte(0xF0 | (c >> 18));
        byte(0x80 | ((c >> 12) & 0x3F));
        byte(0x80 | ((c >> 6) & 0x3F));
        byte(0x80 | (c & 0x3F));
    }
}

// As take_character(), where it is of several bytes or none at all.
char32_t take_long_character(std::string_view& rest) {
    auto const byte_at = [&](std::size_t i) { return static_cast<unsigned char>(rest[i]); };
    unsigned char const lead = byte_at(0);
    std::size_t bytes = 0;
    char32_t c = 0;
    char32_t least = 0;  // what a sequence of this length must reach
    if (lead >= 0xF0 && lead <= 0xF4) {
        bytes = 4, c = lead & 0x07U, least = 0x10000;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        bytes = 3, c = lead & 0x0FU, least = 0x800;
    } else if (lead >= 0xC2 && lead < 0xE0) {
        bytes = 2, c = lead & 0x1FU, least = 0x80;
    } else {
        rest.remove_prefix(1);
        return replacement_character;
    }
    bool well_formed = bytes <= rest.size();
    for (std::size_t i = 1; well_formed && i < bytes; ++i) {
        well_formed = (byte_at(i) & 0xC0U) == 0x80U;
        c = (c << 6) | (byte_at(i) & 0x3FU);
    }
    bool const surrogate = c >= 0xD800 && c <= 0xDFFF;
    if (!well_formed || c < least || c > 0x10FFFF || surrogate) {
        rest.remove_prefix(1);
        return replacement_character;
    }
    rest.remove_prefix(bytes);
    return c;
}

// The character at the front of `rest`, which it is taken off.
char32_t take_character(std::string_view& rest) {
    auto const lead = static_cast<unsigned char>(rest.front());
    if (!is_ascii(lead)) return take_long_character(rest);
    rest.remove_prefix(1);
    return lead;
}

template <typename Change>
std::string changed(std::string_view text, Change change) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) append(result, change(take_character(text)));
    return result;
}

}  // namespace

std::vector<char32_t> characters(std::string_view text) {
    std::vector<char32_t> result;
    result.reserve(text.size());
    while (!text.empty()) result.push_back(take_character(text));
    return result;
}

int length(std::string_view text) {
    int count = 0;
    while (!text.empty()) {
        take_character(text);
        ++count;
    }
    return count;
}

std::string first(std::string_view text, int count) {
    std::string_view rest = text;
    for (int i = 0; i < count && !rest.empty(); ++i) take_character(rest);
    return std::string{text.substr(0, text.size() - rest.size())};
}

std::string replaced(std::string_view text, int start, int count, char32_t character) {
    std::string const head = first(text, start);
    std::string_view tail = text.substr(head.size());
    for (int i = 0; i < count && !tail.empty(); ++i) take_character(tail);
    std::string result = head;
    append(result, character);
    return result.append(tail);
}

std::string encoded(char32_t character) {
    std::string result;
    append(result, character);
    return result;
}

std::string upper(std::string_view text) {
    return changed(text, [](char32_t c) { return upper(c); });
}

std::string lower(std::string_view text) {
    return changed(text, [](char32_t c) { return lower(c); });
}

std::string proper_case(std::string_view text) {
    bool word_starts = true;
    return changed(text, [&](char32_t c) {
        char32_t const cased = word_starts ? upper(c) : lower(c);
        word_starts = c == U' ';
        return cased;
    });
}

bool equal_ignoring_case(std::string_view one, std::string_view other) {
    if (one == other) return true;
    while (!one.empty() && !other.empty()) {
        if (lower(take_character(one)) != lower(take_character(other))) return false;
    }
    return one.empty() && other.empty();
}

int number_of(std::string_view text) {
    // A sign is no digit, though the conversion would take one.
    if (text.empty() || text.front() < '0' || text.front() > '9') return 0;
    constexpr int greatest = 99'999'999;
    int number = greatest;
    std::from_chars(text.data(), text.data() + text.size(), number);  // too great: untouched
    return std::min(number, greatest);
}

std::string padded(int number, int digits) {
    std::string text = std::to_string(number);
    auto const wanted = static_cast<std::size_t>(digits);
    if (text.size() < wanted) text.insert(0, wanted - text.size(), '0');
    return text;
}

std::string two_digits(std::string_view text) {
    return text.empty() ? std::string{} : padded(number_of(text), 2);
}

std::string_view last(std::string_view text, std::size_t count) {
    return text.substr(text.size() - std::min(count, text.size()));
}

std::string Replace_Char(std::string text, std::string_view from, std::string_view to) {
    if (from.empty()) return text;
    bool const never_ends = to.find(from) != std::string_view::npos;
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos;
         at = never_ends ? at + to.size() : 0) {
        text.replace(at, from.size(), to);
    }
    return text;
}

std::string repeated(std::string_view text, int times) {
    std::string row;
    for (int i = 0; i < times; ++i) row += text;
    return row;
}

}  // namespace navarun::text
