// Twelve steps through the calendar.
#include "periods/row_dates.h"

namespace navarun {

std::optional<RowDates> row_dates(std::string_view first_day, int months, bool shows_29th) {
    auto const first = read_date_parts(first_day);
    if (!first) return {};
    RowDates dates;
    int passed = 0;
    for (auto& text : dates) {
        auto const date = add_months(*first, passed);
        auto day = static_cast<int>(unsigned{date.day()});
        auto const month = static_cast<int>(unsigned{date.month()});
        int const year{date.year()};
        if (shows_29th) day = fevrier29(day, month, year);
        text.set(day, month, year);
        passed += months;
    }
    return dates;
}

}  // namespace navarun
