// The calendar window: each cell of each month, the holidays with their asymmetries, the clicks
// that leave the month, its lists, its switches and its clock.
#include <array>
#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shell/program.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr char const* grey = "#C0C0C0";
constexpr char const* weekend = "#E1FFE1";
constexpr char const* holiday = "#FFFF80";
constexpr char const* chosen = "#80FF80";
constexpr char const* azure_day = "#CCE2FC";
constexpr char const* mauve_day = "#EEE1FD";

constexpr std::array month_names{"Janvier",   "Février", "Mars",     "Avril",
                                 "Mai",       "Juin",    "Juillet",  "Août",
                                 "Septembre", "Octobre", "Novembre", "Décembre"};
constexpr std::array small_month_names{"janvier",   "février", "mars",     "avril",
                                       "mai",       "juin",    "juillet",  "août",
                                       "septembre", "octobre", "novembre", "décembre"};
constexpr std::array small_day_names{"dimanche", "lundi",    "mardi", "mercredi",
                                     "jeudi",    "vendredi", "samedi"};

std::string two_digits(unsigned number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string in_words(sys_days date) {
    year_month_day const fields{date};
    return std::string{small_day_names[std::chrono::weekday{date}.c_encoding()]} + " " +
           two_digits(unsigned{fields.day()}) + " " +
           small_month_names[unsigned{fields.month()} - 1] + " " +
           std::to_string(int{fields.year()});
}

struct Cell {
    std::string caption;
    std::string ground;
    std::string tag;
    std::string tooltip;
    bool operator==(Cell const&) const = default;
    friend std::ostream& operator<<(std::ostream& out, Cell const& cell) {
        return out << cell.caption << ' ' << cell.ground << ' ' << cell.tag << " \""
                   << cell.tooltip << '"';
    }
};
using Cells = std::array<Cell, 42>;

std::string cell_name(int index) { return "frmCalend.btnJour(" + std::to_string(index) + ")"; }

Cells shown(Visit& visit) {
    Json names = Json::array();
    for (int i = 0; i < 42; ++i) {
        for (char const* property : {".Caption", ".BackColor", ".Tag", ".ToolTipText"}) {
            names.push_back(cell_name(i) + property);
        }
    }
    Json const values = visit.ask({{"op", "get"}, {"names", names}})["values"];
    Cells cells;
    for (int i = 0; i < 42; ++i) {
        auto const at = [&](char const* property) {
            return values[cell_name(i) + property].get<std::string>();
        };
        cells[static_cast<std::size_t>(i)] = {at(".Caption"), at(".BackColor"), at(".Tag"),
                                              at(".ToolTipText")};
    }
    return cells;
}

struct Switches {
    bool weekends = false;
    bool holidays = false;
};

// The grid laid out by dates rather than by cell numbers.
class Almanac {
  public:
    Almanac(sys_days day, char const* day_ground) : m_day{day} {
        year_month_day const fields{day};
        m_year = int{fields.year()};
        m_month = static_cast<int>(unsigned{fields.month()});
        sys_days const first{fields.year() / fields.month() / 1};
        // The Monday on or before the last day of the month before.
        sys_days const eve = first - days{1};
        m_corner = eve - (std::chrono::weekday{eve} - std::chrono::Monday);
        for (int i = 0; i < 42; ++i) {
            sys_days const date = m_corner + days{i};
            year_month_day const other{date};
            bool const inside = other.month() == fields.month();
            m_cells[at(i)] = {std::to_string(unsigned{other.day()}), inside ? day_ground : grey,
                              inside         ? "0"
                              : date < first ? "-1"
                                             : "1",
                              ""};
        }
    }

    Cells const& cells(Switches switches, sys_days easter) {
        if (switches.weekends) colour_weekends();
        if (switches.holidays) colour_holidays(easter);
        auto& day = m_cells[at(static_cast<int>((m_day - m_corner).count()))];
        day.ground = chosen;
        day.tooltip = in_words(m_day);
        return m_cells;
    }

  private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }

    void colour_weekends() {
        for (int i = 0; i < 42; ++i) {
            if (std::chrono::weekday{m_corner + days{i}}.iso_encoding() > 5) {
                m_cells[at(i)].ground = weekend;
            }
        }
    }

    bool mark(sys_days date, char const* name) {
        auto const place = (date - m_corner).count();
        if (place < 0 || place > 41) return false;
        auto& cell = m_cells[static_cast<std::size_t>(place)];
        cell.ground = holiday;
        cell.tooltip = name;
        return true;
    }

    void colour_holidays(sys_days easter) {
        // Its Monday is marked with it, and only with it.
        if (mark(easter, "Dimanche de paques")) mark(easter + days{1}, "Lundi de paques");
        mark(easter + days{39}, "Jeudi de l'Ascension");
        mark(easter + days{50}, "Lundi de Pentecôte");
        mark_fixed(1, 1, "1er Janvier", false);
        mark_fixed(1, 5, "Fête du travail", true);
        mark_fixed(8, 5, "Armistice 8 mai 1945", true);
        mark_fixed(14, 7, "Fête nationnale", false);
        mark_fixed(15, 8, "Assomption", false);
        mark_fixed(1, 11, "Toussaint", true);
        mark_fixed(11, 11, "Armistice 11 Novembre 1918", false);
        mark_fixed(25, 12, "Noël", false);
    }

    void mark_fixed(unsigned day, int month, char const* name,
                    bool seen_from_the_month_before) {
        if (m_month != month && !(seen_from_the_month_before && m_month + 1 == month)) return;
        mark(sys_days{std::chrono::year{m_year} / month / std::chrono::day{day}}, name);
    }

    sys_days m_day;
    sys_days m_corner{};
    int m_year = 0;
    int m_month = 0;
    Cells m_cells;
};

sys_days date_of_day(int day, int month, int year) {
    return sys_days{std::chrono::year{year} / month / day};
}

// Easter Sundays of 2000 to 2030, as the church publishes them.
constexpr struct {
    int day;
    int month;
} easter_sundays[] = {
    {23, 4}, {15, 4}, {31, 3}, {20, 4}, {11, 4}, {27, 3}, {16, 4}, {8, 4},
    {23, 3}, {12, 4}, {4, 4},  {24, 4}, {8, 4},  {31, 3}, {20, 4}, {5, 4},
    {27, 3}, {16, 4}, {1, 4},  {21, 4}, {12, 4}, {4, 4},  {17, 4}, {9, 4},
    {31, 3}, {20, 4}, {5, 4},  {28, 3}, {16, 4}, {1, 4},  {21, 4},
};

sys_days easter_of(int year) {
    auto const& row = easter_sundays[year - 2000];
    return date_of_day(row.day, row.month, year);
}

/// The calendar, opened on 21 November 2026.
struct Calendar : Visit {
    Calendar() { click("MnuCalendrier"); }
    void view(int month, int year) {
        choose("frmCalend.cAn", std::to_string(year));
        choose("frmCalend.cMois", month_names[static_cast<std::size_t>(month - 1)]);
    }
    void pick(int cell) { click(cell_name(cell)); }
    void pick_day(int day) {
        auto const cells = shown(*this);
        for (int i = 0; i < 42; ++i) {
            auto const& cell = cells[static_cast<std::size_t>(i)];
            if (cell.tag == "0" && cell.caption == std::to_string(day)) return pick(i);
        }
        ADD_FAILURE() << day;
    }
    std::string date() { return text("frmCalend.lblDate.Caption"); }
    Cell cell(int index) { return shown(*this)[static_cast<std::size_t>(index)]; }
    void weekends() { click("frmCalend.chkWeek"); }
    void holidays() { click("frmCalend.chkFerie"); }
};

void walk(Switches switches) {
    Calendar calendar;
    if (switches.weekends) calendar.weekends();
    if (switches.holidays) calendar.holidays();
    calendar.view(1, 2000);
    calendar.pick_day(1);
    for (int year = 2000; year <= 2030; ++year) {
        for (int month = 1; month <= 12; ++month) {
            calendar.view(month, year);
            sys_days const day = date_of_day(1, month, year);
            auto const found = shown(calendar);
            auto const expected = Almanac{day, azure_day}.cells(switches, easter_of(year));
            for (std::size_t i = 0; i < found.size(); ++i) {
                ASSERT_EQ(found[i], expected[i]) << month << '/' << year << " cell " << i;
            }
            ASSERT_EQ(calendar.date(), in_words(day));
        }
    }
}

TEST(CalendarWalk, EveryCellOf31YearsHasItsNumberMonthAndColour) { walk({}); }
TEST(CalendarWalk, WeekendsColourTheirTwoColumnsInEveryMonth) { walk({.weekends = true}); }
TEST(CalendarWalk, HolidaysLieOverTheWeekendsOf31Years) {
    walk({.weekends = true, .holidays = true});
}
TEST(CalendarWalk, HolidaysAloneLeaveTheWeekends) { walk({.holidays = true}); }

TEST(CalendarWalk, EveryDayOfALeapYearCanBeChosen) {
    Calendar calendar;
    for (int month = 1; month <= 12; ++month) {
        calendar.view(month, 2024);
        calendar.pick_day(1);
        for (sys_days day = date_of_day(1, month, 2024);
             unsigned{year_month_day{day}.month()} == static_cast<unsigned>(month);
             day += days{1}) {
            calendar.pick_day(static_cast<int>(unsigned{year_month_day{day}.day()}));
            EXPECT_EQ(calendar.date(), in_words(day));
        }
    }
}

TEST(CalendarWindow, OpensOnTodayWithItsHeadingsAndLists) {
    Calendar calendar;
    EXPECT_TRUE(calendar.truth("frmCalend.Visible"));
    EXPECT_EQ(calendar.text("frmCalend.Caption"), "Calendrier");
    EXPECT_EQ(calendar.date(), "samedi 21 novembre 2026");
    EXPECT_EQ(calendar.text("frmCalend.Label_horloge.Caption"), "21/11/2026");
    EXPECT_EQ(calendar.text("frmCalend.Label_Heure.Caption"), "10:15:00");
    char const* const headings[]{"Lun", "Mar", "Mer", "Jeu", "Ven", "Sam", "Dim"};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(calendar.text("frmCalend.lblJour(" + std::to_string(i) + ").Caption"),
                  headings[i]);
    }
    EXPECT_EQ(calendar.value("frmCalend.cMois.List"), Json(month_names));
    Json const years = calendar.value("frmCalend.cAn.List");
    ASSERT_EQ(years.size(), 618u);
    EXPECT_EQ(years.front(), "1582");
    EXPECT_EQ(years.back(), "2199");
    EXPECT_EQ(calendar.number("frmCalend.cMois.ListIndex"), 10);
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), 2026 - 1582);
    EXPECT_EQ(calendar.text("frmCalend.chkWeek.Caption"), "WeekEnd");
    EXPECT_EQ(calendar.text("frmCalend.chkFerie.Caption"), "Fériés");
    EXPECT_EQ(calendar.text("frmCalend.BtnToday.Caption"), "Aujourd'hui");
    EXPECT_FALSE(calendar.truth("frmCalend.txtDate.Visible"));
    // 1 November 2026 is a Sunday: six days of October before it.
    EXPECT_EQ(calendar.cell(26), (Cell{"21", chosen, "0", "samedi 21 novembre 2026"}));
}

// --- oddities of the grid

TEST(CalendarWindow, AMonthThatBeginsOnAMondayShowsAWholeRowOfTheMonthBefore) {
    Calendar calendar;
    calendar.view(6, 2026);
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(calendar.cell(i), (Cell{std::to_string(25 + i), grey, "-1", ""}));
    }
    EXPECT_EQ(calendar.cell(7), (Cell{"1", azure_day, "0", ""}));
}

struct SlideCase {
    char const* name;
    int day;
    int month;
    int year;
    int to_month;
    int to_year;
    char const* shown;
    friend std::ostream& operator<<(std::ostream& out, SlideCase const& row) {
        return out << row.name;
    }
};
// clang-format off
constexpr SlideCase slide_cases[] = {
    {"day_31_in_April",         31, 3, 2026,  4, 2026, "jeudi 30 avril 2026"      },
    {"day_31_in_February",      31, 1, 2026,  2, 2026, "samedi 28 février 2026"   },
    {"day_31_in_leap_February", 31, 1, 2024,  2, 2024, "jeudi 29 février 2024"    },
    {"leap_day_in_common_year", 29, 2, 2024,  2, 2025, "vendredi 28 février 2025" },
    {"leap_day_in_leap_year",   29, 2, 2024,  2, 2028, "mardi 29 février 2028"    },
    {"leap_day_of_2000",        29, 2, 2000,  2, 2100, "dimanche 28 février 2100" },
    {"day_30_stays",            30, 4, 2026,  5, 2026, "samedi 30 mai 2026"       },
};
// clang-format on
class Slide : public testing::TestWithParam<SlideCase> {};
TEST_P(Slide, IntoTheMonth) {
    auto const& row = GetParam();
    Calendar calendar;
    calendar.view(row.month, row.year);
    calendar.pick_day(row.day);
    calendar.view(row.to_month, row.to_year);
    EXPECT_EQ(calendar.date(), row.shown);
}
INSTANTIATE_TEST_SUITE_P(CalendarWindow, Slide, testing::ValuesIn(slide_cases),
                         [](auto const& row) { return row.param.name; });

TEST(CalendarWindow, ADayOnceSlidStaysWhereItSlid) {
    Calendar calendar;
    calendar.view(1, 2026);
    calendar.pick_day(31);
    calendar.view(2, 2026);
    calendar.view(3, 2026);
    EXPECT_EQ(calendar.date(), "samedi 28 mars 2026");
}

// --- clicks on the neighbours

TEST(CalendarWindow, AClickOnAGreyDayMovesTheViewThere) {
    Calendar calendar;
    calendar.view(12, 2026);
    EXPECT_EQ(calendar.cell(41), (Cell{"10", grey, "1", ""}));
    calendar.pick(41);
    EXPECT_EQ(calendar.date(), "dimanche 10 janvier 2027");
    EXPECT_EQ(calendar.number("frmCalend.cMois.ListIndex"), 0);
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), 2027 - 1582);
    EXPECT_EQ(calendar.text("cal_jour"), "10");
    EXPECT_EQ(calendar.text("cal_mois"), "01");
    EXPECT_EQ(calendar.text("cal_annee"), "2027");
    EXPECT_EQ(calendar.cell(0), (Cell{"28", grey, "-1", ""}));
    calendar.pick(0);
    EXPECT_EQ(calendar.date(), "lundi 28 décembre 2026");
    EXPECT_EQ(calendar.number("frmCalend.cMois.ListIndex"), 11);
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), 2026 - 1582);
}

TEST(CalendarWindow, EveryGreyCellOfAYearLeadsToItsOwnDay) {
    for (int month = 1; month <= 12; ++month) {
        Calendar calendar;
        for (int i = 0; i < 42; ++i) {
            calendar.view(month, 2023);
            if (calendar.cell(i).tag == "0") continue;
            sys_days const eve = date_of_day(1, month, 2023) - days{1};
            sys_days const corner = eve - (std::chrono::weekday{eve} - std::chrono::Monday);
            calendar.pick(i);
            EXPECT_EQ(calendar.date(), in_words(corner + days{i})) << month << " cell " << i;
        }
    }
}

TEST(CalendarWindow, BeyondTheListedYearsTheViewMovesOnAndTheYearListHasNoSelection) {
    Calendar calendar;
    calendar.view(12, 2199);
    calendar.pick(41);
    EXPECT_EQ(calendar.text("cal_annee"), "2200");
    EXPECT_EQ(calendar.text("cal_mois"), "01");
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), -1);
    EXPECT_EQ(calendar.number("frmCalend.cMois.ListIndex"), 0);
    EXPECT_EQ(calendar.date(), "dimanche 05 janvier 2200");
    calendar.choose("frmCalend.cMois", "Février");
    EXPECT_EQ(calendar.date(), "mercredi 05 février 2200");
    calendar.choose("frmCalend.cMois", "Janvier");
    calendar.pick(0);
    EXPECT_EQ(calendar.date(), "lundi 30 décembre 2199");
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), 617);
}

TEST(CalendarWindow, BeforeTheListedYearsTheViewMovesOnToo) {
    Calendar calendar;
    calendar.view(1, 1582);
    calendar.pick(0);
    EXPECT_EQ(calendar.text("cal_annee"), "1581");
    EXPECT_EQ(calendar.text("cal_mois"), "12");
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), -1);
    EXPECT_EQ(calendar.number("frmCalend.cMois.ListIndex"), 11);
    calendar.pick(41);
    EXPECT_EQ(calendar.text("cal_annee"), "1582");
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), 0);
}

TEST(CalendarWindow, AYearChosenFromBeyondTheListComesBackIntoIt) {
    Calendar calendar;
    calendar.view(12, 2199);
    calendar.pick(41);
    calendar.choose("frmCalend.cAn", "2000");
    EXPECT_EQ(calendar.date(), "mercredi 05 janvier 2000");
}

// Found by the random user: there is no year to go to.
TEST(CalendarWindow, AClickOnTheYearListWithoutASelectionLeavesTheView) {
    Visit visit{"15/12/2199"};
    visit.click("MnuCalendrier");
    visit.click("frmCalend.btnJour(41)");
    ASSERT_EQ(visit.number("frmCalend.cAn.ListIndex"), -1);
    std::string const day = visit.text("frmCalend.lblDate.Caption");
    visit.click("frmCalend.cAn");
    EXPECT_EQ(visit.text("frmCalend.lblDate.Caption"), day);
    EXPECT_EQ(visit.text("cal_annee"), "2200");
}

// Found by the random user: dates are of the years 1 to 9999.
TEST(CalendarWindow, AtTheEndsOfTheCalendarTheViewStays) {
    for (char const* const end : {"01/01/0001", "31/12/9999"}) {
        Visit visit{end};
        visit.click("MnuCalendrier");
        std::string const month = visit.text("cal_mois");
        int const beyond = month == "01" ? 0 : 41;
        ASSERT_NE(visit.text("frmCalend.btnJour(" + std::to_string(beyond) + ").Tag"), "0");
        visit.click("frmCalend.btnJour(" + std::to_string(beyond) + ")");
        EXPECT_EQ(visit.text("cal_mois"), month);
        EXPECT_EQ(visit.text("cal_annee"), std::string{end}.substr(6));
        EXPECT_EQ(visit.number("frmCalend.cMois.ListIndex"), month == "01" ? 0 : 11);
    }
}

TEST(CalendarWindow, ADayClickTakesTheKeyboardOffTheButtons) {
    Calendar calendar;
    calendar.pick_day(7);
    auto& program = calendar.program();
    EXPECT_EQ(program.screen.focus(), &program.frm_calend.txtDate);
    EXPECT_EQ(calendar.number("cal_case"), -1);
}

// --- holidays

struct HolidayCase {
    char const* name;
    int month;
    int year;
    int cell;
    Cell expected;
    friend std::ostream& operator<<(std::ostream& out, HolidayCase const& row) {
        return out << row.name;
    }
};
// clang-format off
HolidayCase const holiday_cases[] = {
    {"Easter_of_2000",                        4, 2000, 27, {"23", holiday, "0",  "Dimanche de paques"}},
    {"Easter_Monday_across_a_row",            4, 2000, 28, {"24", holiday, "0",  "Lundi de paques"}},
    {"Whit_Monday_of_2000",                   6, 2000, 14, {"12", holiday, "0",  "Lundi de Pentecôte"}},
    {"Ascension_of_2000",                     6, 2000,  3, {"1",  holiday, "0",  "Jeudi de l'Ascension"}},
    {"Ascension_of_June_seen_from_May",       5, 2000, 38, {"1",  holiday, "1",  "Jeudi de l'Ascension"}},
    {"Easter_on_1_April_seen_from_March",     3, 2018, 34, {"1",  holiday, "1",  "Dimanche de paques"}},
    {"its_Monday_seen_from_March",            3, 2018, 35, {"2",  holiday, "1",  "Lundi de paques"}},
    {"Easter_of_March_seen_from_April",       4, 2024,  6, {"31", holiday, "-1", "Dimanche de paques"}},
    {"Monday_of_April_after_Easter_of_March", 4, 2024,  7, {"1",  holiday, "0",  "Lundi de paques"}},
    {"Easter_in_the_last_cell",               3, 2015, 41, {"5",  holiday, "1",  "Dimanche de paques"}},
    {"New_Year",                              1, 2026,  3, {"1",  holiday, "0",  "1er Janvier"}},
    {"New_Year_unmarked_from_December",      12, 2026, 32, {"1",  grey,    "1",  ""}},
    {"Christmas",                            12, 2026, 25, {"25", holiday, "0",  "Noël"}},
    {"Christmas_unmarked_from_January",       1, 2024,  0, {"25", grey,    "-1", ""}},
    {"Labour_Day_seen_from_April",            4, 2026, 32, {"1",  holiday, "1",  "Fête du travail"}},
    {"8_May_seen_from_April",                 4, 2026, 39, {"8",  holiday, "1",  "Armistice 8 mai 1945"}},
    {"All_Saints_seen_from_October",         10, 2026, 34, {"1",  holiday, "1",  "Toussaint"}},
    {"11_November",                          11, 2025, 15, {"11", holiday, "0",  "Armistice 11 Novembre 1918"}},
    {"14_July",                               7, 2026, 15, {"14", holiday, "0",  "Fête nationnale"}},
    {"15_August",                             8, 2026, 19, {"15", holiday, "0",  "Assomption"}},
    {"11_November_unmarked_from_October",    10, 2010, 41, {"7",  grey,    "1",  ""}},
};
// clang-format on
class HolidayCell : public testing::TestWithParam<HolidayCase> {};
TEST_P(HolidayCell, IsMarkedOrLeft) {
    auto const& row = GetParam();
    Calendar calendar;
    calendar.holidays();
    calendar.view(row.month, row.year);
    calendar.pick_day(20);
    EXPECT_EQ(calendar.cell(row.cell), row.expected);
}
INSTANTIATE_TEST_SUITE_P(CalendarWindow, HolidayCell, testing::ValuesIn(holiday_cases),
                         [](auto const& row) { return row.param.name; });

TEST(CalendarWindow, MarchOf2015HasNoCellForEasterMondayAndGoesOn) {
    Calendar calendar;
    calendar.holidays();
    calendar.view(3, 2015);
    auto const cells = shown(calendar);
    for (auto const& cell : cells) EXPECT_NE(cell.tooltip, "Lundi de paques");
    calendar.view(4, 2015);
    EXPECT_EQ(calendar.cell(7).tooltip, "Lundi de paques");
    EXPECT_TRUE(calendar.effects().empty());
}

TEST(CalendarWindow, TheChosenDayHidesTheHolidayItIs) {
    Calendar calendar;
    calendar.holidays();
    calendar.view(12, 2026);
    calendar.pick_day(25);
    EXPECT_EQ(calendar.cell(25), (Cell{"25", chosen, "0", "vendredi 25 décembre 2026"}));
    calendar.pick_day(24);
    EXPECT_EQ(calendar.cell(25), (Cell{"25", holiday, "0", "Noël"}));
}

TEST(CalendarWindow, ASwitchTurnedOffTakesItsColoursAway) {
    Calendar calendar;
    Cells const plain = shown(calendar);
    calendar.weekends();
    EXPECT_EQ(calendar.cell(6), (Cell{"1", weekend, "0", ""}));
    EXPECT_EQ(calendar.cell(5), (Cell{"31", weekend, "-1", ""}));
    calendar.holidays();
    EXPECT_EQ(calendar.cell(6), (Cell{"1", holiday, "0", "Toussaint"}));
    calendar.weekends();
    calendar.holidays();
    EXPECT_EQ(shown(calendar), plain);
}

// --- lists, clock, button, lifecycle

TEST(CalendarWindow, TheListsFireWhileTheGridIsDrawnAndDoNotDrawItAgain) {
    Calendar calendar;
    calendar.view(12, 2026);
    auto& window = calendar.program().frm_calend;
    auto& values = calendar.program().calendar;
    int fired = 0;
    auto const watch = [&](std::function<void()>& handler) {
        handler = [&, before = handler] {
            ++fired;
            EXPECT_TRUE(values.cal_calcul);
            window.btnJour(0).Caption = "?";  // a new drawing would number it
            before();
            EXPECT_EQ(window.btnJour(0).Caption.get(), "?");
        };
    };
    auto const month = window.cMois.on_click;
    auto const year = window.cAn.on_click;
    watch(window.cMois.on_click);
    watch(window.cAn.on_click);
    calendar.pick(41);
    EXPECT_EQ(fired, 2);
    EXPECT_FALSE(values.cal_calcul);
    EXPECT_EQ(window.btnJour(0).Caption.get(), "?");
    window.cMois.on_click = month;
    window.cAn.on_click = year;
    calendar.choose("frmCalend.cMois", "Mars");
    EXPECT_EQ(window.btnJour(0).Caption.get(), "22");
}

TEST(CalendarWindow, TheClockGoesOnAndTheDayAtItsOpeningStays) {
    Calendar calendar;
    calendar.clock("22/11/2026", "00:00:07");
    EXPECT_EQ(calendar.text("frmCalend.Label_Heure.Caption"), "00:00:07");
    EXPECT_EQ(calendar.text("frmCalend.Label_horloge.Caption"), "21/11/2026");
    EXPECT_EQ(calendar.date(), "samedi 21 novembre 2026");
    calendar.click("frmCalend.BtnToday");
    EXPECT_EQ(calendar.date(), "dimanche 22 novembre 2026");
}

TEST(CalendarWindow, TheClockStandsStillWhileTheWindowIsClosed) {
    Calendar calendar;
    calendar.ask({{"op", "close"}, {"form", "frmCalend"}});
    calendar.clock("21/11/2026", "23:59:59");
    EXPECT_EQ(calendar.text("frmCalend.Label_Heure.Caption"), "10:15:00");
}

TEST(CalendarWindow, TheButtonComesBackToTodayFromAnywhere) {
    Calendar calendar;
    calendar.view(2, 1999);
    calendar.pick_day(3);
    calendar.click("frmCalend.BtnToday");
    EXPECT_EQ(calendar.date(), "samedi 21 novembre 2026");
    EXPECT_EQ(calendar.number("frmCalend.cAn.ListIndex"), 2026 - 1582);
    EXPECT_EQ(calendar.number("frmCalend.cMois.ListIndex"), 10);
}

TEST(CalendarWindow, ClosedByItsFrameItOpensAnewOnToday) {
    Calendar calendar;
    calendar.view(2, 1999);
    calendar.ask({{"op", "close"}, {"form", "frmCalend"}});
    EXPECT_FALSE(calendar.truth("frmCalend.Visible"));
    calendar.clock("01/01/2027", "08:00:00");
    calendar.click("MnuCalendrier");
    EXPECT_TRUE(calendar.truth("frmCalend.Visible"));
    EXPECT_EQ(calendar.date(), "vendredi 01 janvier 2027");
    EXPECT_EQ(calendar.text("frmCalend.Label_horloge.Caption"), "01/01/2027");
    EXPECT_EQ(calendar.value("frmCalend.cAn.List").size(), 618u);
    EXPECT_EQ(calendar.value("frmCalend.cMois.List").size(), 12u);
}

TEST(CalendarWindow, AResetHidesItAndItComesBackOnItsMonth) {
    Calendar calendar;
    calendar.view(2, 1999);
    calendar.click("Command_reset");
    EXPECT_FALSE(calendar.truth("frmCalend.Visible"));
    calendar.click("MnuCalendrier");
    EXPECT_TRUE(calendar.truth("frmCalend.Visible"));
    EXPECT_EQ(calendar.date(), "dimanche 21 février 1999");
}

TEST(CalendarWindow, TheMenuOnTheOpenWindowLeavesItsMonth) {
    Calendar calendar;
    calendar.view(2, 1999);
    calendar.click("MnuCalendrier");
    EXPECT_EQ(calendar.date(), "dimanche 21 février 1999");
}

struct SchemeCase {
    char const* menu;
    char const* ground;
    char const* day;
    friend std::ostream& operator<<(std::ostream& out, SchemeCase const& row) {
        return out << row.menu;
    }
};
// clang-format off
constexpr SchemeCase scheme_cases[] = {
    {"MnuAzur_Aum",    "#B4CEFC", azure_day},
    {"MnuMauve_cycle", "#CCB2FC", mauve_day},
    {"MnuMauve_Aum",   "#CCB2FC", mauve_day},
};
// clang-format on
class Scheme : public testing::TestWithParam<SchemeCase> {};
TEST_P(Scheme, ColoursTheCalendarWhenItOpens) {
    Visit visit;
    visit.click(GetParam().menu);
    visit.click("MnuCalendrier");
    for (char const* part : {"", "chkWeek.", "chkFerie.", "BtnToday."}) {
        EXPECT_EQ(visit.text(std::string{"frmCalend."} + part + "BackColor"), GetParam().ground)
            << part;
    }
    EXPECT_EQ(visit.text("frmCalend.lblDate.BackColor"), "#2C8EDC");
    EXPECT_EQ(visit.text(cell_name(10) + ".BackColor"), GetParam().day);
}
TEST_P(Scheme, ChangedUnderTheOpenWindowReachesItsDaysAndThenItsGround) {
    Calendar calendar;
    calendar.click("MnuMauve_cycle");
    calendar.click("MnuAzur_cycle");
    calendar.click(GetParam().menu);
    EXPECT_EQ(calendar.text("frmCalend.BackColor"), "#B4CEFC");
    calendar.pick_day(2);
    EXPECT_EQ(calendar.text(cell_name(10) + ".BackColor"), GetParam().day);
    calendar.click("MnuCalendrier");
    EXPECT_EQ(calendar.text("frmCalend.BackColor"), GetParam().ground);
}
INSTANTIATE_TEST_SUITE_P(CalendarWindow, Scheme, testing::ValuesIn(scheme_cases),
                         [](auto const& row) { return row.param.menu; });

TEST(CalendarWindow, LeavesTheConsultationAlone) {
    Visit visit;
    Json const before = visit.dump();
    visit.click("MnuCalendrier");
    visit.click("frmCalend.chkFerie");
    visit.choose("frmCalend.cAn", "1900");
    EXPECT_EQ(visit.dump(), before);
}

}  // namespace
}  // namespace navarun::test
