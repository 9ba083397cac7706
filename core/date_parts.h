// A date text in its three parts, for whom the day's serial would be a detour: from the parts a
// row of other dates is written.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "core/calendar.h"

namespace navarun {

/// A date text by itself, without a string's memory; at first the one of no day.
class DateText {
  public:
    /// REQUIRES a day and a month of two digits; of the year, 0 or more, the last four count.
    void set(int day, int month, int year);
    operator std::string_view() const { return {m_characters.data(), m_characters.size()}; }

  private:
    std::array<char, 10> m_characters{'0', '0', '/', '0', '0', '/', '0', '0', '0', '0'};
};

/// As read_date().
std::optional<YearMonthDay> read_date_parts(std::string_view text);

}  // namespace navarun
