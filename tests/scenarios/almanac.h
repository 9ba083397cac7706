// A second reckoning of a consultation, written from the practitioners' rules alone and in
// other words than the program's, to hold the program against.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace navarun::test {

/// A day of the Gregorian calendar, carried on backwards.
struct CivilDay {
    int day = 1;
    int month = 1;
    int year = 1;
    bool operator==(CivilDay const&) const = default;
};

/// Two digits, two digits, four digits; empty for anything else, and for a day that its month
/// does not have.
std::optional<CivilDay> read_day(std::string_view text);
std::string written(CivilDay day);
/// Days since the last day of the year 0.
int serial(CivilDay day);
/// 1 for Sunday to 7 for Saturday.
int weekday_number(CivilDay day);
int days_of_month(int month, int year);
/// The same day of a later month, its last day where it is shorter.
CivilDay months_later(CivilDay day, int months);
CivilDay days_later(CivilDay day, int days);

/// Surya .. Kuja, 1 to 9.
std::string lord_name(int number);
/// By weekday, 1 for Sunday.
int weekday_lord_number(int weekday);

/// What stands in the cells 1 to 12, at 0 to 11.
using CellTexts = std::array<std::string, 12>;

/// The grid of one window: what a generation leaves, and what the next one finds.
class Reckoning {
  public:
    /// Generates for a Gregorian birth between 1600 and 2199.
    void generate(CivilDay birth, int age, CivilDay today);

    int sun_cell = 0;
    int degree = 0;
    int mansion = 0;
    int weekday = 0;
    int age_cell = 0;
    int year_lord = 0;
    CivilDay first_day;  // of the cycle year
    CivilDay last_day;
    CellTexts palaces;
    CellTexts month_lords;
    CellTexts month_dates;
    CellTexts period_lords;
    CellTexts period_dates;
    int period_cell = 0;  // where the period's dates start
    std::string age_caption;
    int selected_month = 0;
    int selected_period = 0;
    std::optional<int> bold_month;
    std::optional<int> bold_period;
    /// The months that carry a mark of the triple coincidence.
    std::vector<int> marks;

  private:
    void place_the_sun(CivilDay birth);
    void fill_months(CivilDay birth, int age, CivilDay today);
    void fill_period(CivilDay birth, int age);
    void find_step_in_progress(CivilDay today);

    int m_shown_lord = 0;
    bool m_start_cell_coloured = false;
};

}  // namespace navarun::test
