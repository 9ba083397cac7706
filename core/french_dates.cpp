// Names of the months, and the long date.
#include "core/french_dates.h"

#include <array>

#include "core/text.h"
#include "core/weekdays.h"

namespace navarun {

namespace {

constexpr std::array<std::string_view, 12> months{
    "Janvier", "Février", "Mars",      "Avril",   "Mai",      "Juin",
    "Juillet", "Août",    "Septembre", "Octobre", "Novembre", "Décembre",
};

}  // namespace

std::string_view month_name(int month) {
    return months.at(static_cast<std::size_t>(month - 1));
}

std::string long_date(Date date) {
    std::string words = text::lower(weekday(weekday_of(date)).name);
    words.append(" ").append(text::padded(day_of(date), 2)).append(" ");
    words.append(text::lower(month_name(month_of(date)))).append(" ");
    return words.append(text::padded(year_of(date), 4));
}

}  // namespace navarun
