// The lines of the cycle list.
#include "periods/cycle_list.h"

#include "core/cells.h"
#include "core/text.h"
#include "periods/cycle_lords.h"
#include "periods/lord_circle.h"

namespace navarun {

namespace {

// Five characters each, so that the dates stand in one column.
std::string five_characters(std::string_view name) {
    std::string five{name.substr(0, 5)};
    five.resize(5, ' ');
    return five;
}

std::string in_brackets(int number) { return "(" + text::padded(number, 2) + ")"; }

// Where the date stands in the line of a year, in bytes: all before it is ASCII.
constexpr std::size_t date_at = 11;
constexpr std::size_t date_length = 10;
// The first heading holds no year.
constexpr std::size_t first_year_line = 3;

}  // namespace

std::vector<std::string> cycle_lines(CycleListing const& listing) {
    std::vector<std::string> lines;
    auto place = static_cast<std::size_t>(circle_place(listing.first_lord) - 1);
    int age = 1;
    int cell = 1;
    int year = listing.year_of_century + 1;
    do {
        for (std::size_t period = 0; period < circle.size(); ++period) {
            auto const& lord = circle[place];
            lines.push_back(text::repeated("_", 22));
            lines.push_back(five_characters(lord.capitals) + "    " +
                            write_date(add_years(listing.birth, age)) + "   " +
                            in_brackets(lord.years));
            lines.push_back(text::repeated("¯", 20));
            for (int i = 0; i < lord.years; ++i) {
                int const year_lord =
                    lord_of_year(listing.weekday_lord, listing.day, listing.month, year);
                std::string line = text::padded(age, 3) + "   ";
                line += lords[static_cast<std::size_t>(year_lord - 1)].short_name;
                line += "   " + write_date(add_years(listing.birth, age)) + "   ";
                lines.push_back(line + in_brackets(cell));
                ++year;
                ++age;
                cell = cell_after(cell);
            }
            place = (place + 1) % circle.size();
        }
    } while (age <= listing.age_shown);
    return lines;
}

std::optional<int> line_starting_on(std::vector<std::string> const& lines, Date anniversary) {
    for (std::size_t i = first_year_line; i < lines.size(); ++i) {
        if (lines[i].size() < date_at + date_length) continue;
        if (read_date(std::string_view{lines[i]}.substr(date_at, date_length)) == anniversary) {
            return static_cast<int>(i);
        }
    }
    return {};
}

}  // namespace navarun
