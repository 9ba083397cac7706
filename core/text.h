// Texts are UTF-8; the few operations that count characters or change their case stand here.
// Letters are those of Western Europe, the only ones that the practice's files can hold.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace navarun::text {

/// A line break inside a text, as the files and the text fields hold it.
inline constexpr std::string_view line_break = "\r\n";

/// The characters of `text`; each byte that is no UTF-8 counts as one U+FFFD.
std::vector<char32_t> characters(std::string_view text);
/// Number of characters.
int length(std::string_view text);
/// The first `count` characters, all where there are fewer.
std::string first(std::string_view text, int count);
/// `character` in place of the `count` characters from `start` on. Outside the text nothing is
/// replaced and the character goes to the end.
std::string replaced(std::string_view text, int start, int count, char32_t character);
/// One character as UTF-8.
std::string encoded(char32_t character);

std::string upper(std::string_view text);
std::string lower(std::string_view text);
/// First letter of each word capital, the others small. Only a blank starts a new word, so that
/// "jean-pierre dupont" becomes "Jean-pierre Dupont".
std::string proper_case(std::string_view text);
/// Whether two texts are equal but for the case of their letters. Equal ones are told soon.
bool equal_ignoring_case(std::string_view one, std::string_view other);

/// The number that `text` starts with: its leading decimal digits, 0 where there is none.
/// Greater numbers give 99 999 999, so that dates, ages and lords still add up to an int.
int number_of(std::string_view text);
/// `number` with leading zeros to at least `digits` digits. REQUIRES number >= 0.
std::string padded(int number, int digits);
/// The format "00": the number of `text` in at least two digits; an empty text stays empty.
std::string two_digits(std::string_view text);
/// The last `count` bytes, all where there are fewer. For texts of digits.
std::string_view last(std::string_view text, std::size_t count);

/// `text` with every `from` replaced by `to`. The search begins anew after each replacement, so
/// that what closes up to a `from` is replaced as well; but where `to` holds `from`, what is
/// put in is not searched again. An empty `from` changes nothing.
std::string Replace_Char(std::string text, std::string_view from, std::string_view to);

/// `text` so many times in a row, as the lines that part the blocks of a text are drawn; empty
/// where `times` is 0 or less.
std::string repeated(std::string_view text, int times);

}  // namespace navarun::text
