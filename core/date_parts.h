// A date text in its three parts, for whom the day's serial would be a detour: from the parts a
// row of other dates is written.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "core/calendar.h"

namespace navarun {

/// A date text by itself, without a string's memory.
struct DateText {
    std::array<char, 10> characters;
    operator std::string_view() const { return {characters.data(), characters.size()}; }
};

/// As write_date(). REQUIRES day and month below 100; of the year the last four digits count.
DateText date_text(unsigned day, unsigned month, unsigned year);

/// As read_date().
std::optional<YearMonthDay> read_date_parts(std::string_view text);

}  // namespace navarun
