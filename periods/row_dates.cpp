// Twelve steps through the calendar.
#include "periods/row_dates.h"

#include <algorithm>

namespace navarun {

std::optional<RowDates> row_dates(std::string_view first_day, int months, bool shows_29th) {
    auto const first = read_date_parts(first_day);
    if (!first) return {};
    int const birthday = static_cast<int>(unsigned{first->day()});
    int month = 12 * int{first->year()} + static_cast<int>(unsigned{first->month()}) - 1;
    RowDates dates;
    for (auto& date : dates) {
        int const year = month / 12;
        int const month_of_year = month % 12 + 1;
        int day = std::min(birthday, NbrJours(month_of_year, year));
        if (shows_29th) day = fevrier29(day, month_of_year, year);
        date.set(day, month_of_year, year);
        month += months;
    }
    return dates;
}

}  // namespace navarun
