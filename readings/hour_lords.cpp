// The ring of the hours, and the listing.
#include "readings/hour_lords.h"

#include <algorithm>
#include <array>

#include "core/french_dates.h"
#include "core/lords.h"
#include "core/text.h"
#include "core/weekdays.h"

namespace navarun {

namespace {

constexpr int first_hour = 6;

// Each hour takes the next of this ring.
constexpr std::array<Lord, 7> ring{
    Lord::Shani, Lord::Guru, Lord::Kuja, Lord::Surya, Lord::Shukra, Lord::Budha, Lord::Chandra,
};

// The lord of an hour of the day that runs from 6 h to 6 h; the hours before 6 are its last.
Lord lord_of_hour(int weekday_number, int hour) {
    auto const start = std::ranges::find(ring, weekday(weekday_number).lord) - ring.begin();
    int const steps = (hour - first_hour + 24) % 24;
    return ring[static_cast<std::size_t>(start + steps) % ring.size()];
}

std::string name_of(Lord lord) { return std::string{row_of(lord).name}; }

// The day to which a moment belongs: before 6 h still the day before.
Date day_of_lords(Date date, int hour) {
    return hour < first_hour ? date - std::chrono::days{1} : date;
}

std::string hour_line(int hour) {
    std::string line = text::padded(hour, 2) + " h   ";
    for (int day = 1; day <= 7; ++day) {
        if (day > 1) line += "  ";
        line += row_of(lord_of_hour(day, hour)).short_name;
    }
    return line;
}

std::string day_line(Date date) {
    auto const& day = weekday(weekday_of(date));
    std::string line = text::first(day.name, 3);
    return line.append(" ").append(write_date(date)).append("   ").append(name_of(day.lord));
}

}  // namespace

std::vector<std::string> lord_lines(LordListing const& listing) {
    int const day_now = weekday_of(day_of_lords(listing.today, listing.hour));
    std::vector<std::string> lines{
        listing.name.empty() ? "NOM INCONNU" : listing.name,
        listing.birth_date,
        "Seigneur du jour: " + name_of(weekday(day_now).lord),
        "Seigneur de l'heure: " + name_of(lord_of_hour(day_now, listing.hour)),
        "",
        "Heure   Di  Lu  Ma  Me  Je  Ve  Sa",
        text::repeated("¯", 30),
    };
    for (int i = 0; i < 24; ++i) lines.push_back(hour_line((first_hour + i) % 24));
    lines.emplace_back();
    for (Date date = listing.first_day; date <= listing.last_day;
         date += std::chrono::days{1}) {
        if (date == listing.first_day || day_of(date) == 1) {
            lines.push_back(text::upper(month_name(month_of(date))) + " " +
                            std::to_string(year_of(date)));
        }
        lines.push_back(day_line(date));
    }
    return lines;
}

}  // namespace navarun
