// The grid of the calendar.
#include "readings/calendar_window.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/french_dates.h"
#include "core/text.h"
#include "readings/easter.h"
#include "shell/program.h"

namespace navarun {

namespace {

using screen::Colour;

constexpr int cell_count = 42;
constexpr int first_listed_year = 1582;
constexpr int last_listed_year = 2199;

constexpr Colour other_month_ground{0xC0C0C0};
constexpr Colour weekend_ground{0xE1FFE1};
constexpr Colour holiday_ground{0xFFFF80};
constexpr Colour chosen_ground{0x80FF80};

// To which month a cell belongs, as its tag tells it.
constexpr std::string_view previous_month = "-1";
constexpr std::string_view current_month = "0";
constexpr std::string_view next_month = "1";

void refresh_numbers(CalendarValues& values) {
    values.cal_jour_n = text::number_of(values.cal_jour);
    values.cal_mois_n = text::number_of(values.cal_mois);
    values.cal_annee_n = text::number_of(values.cal_annee);
}

void set_chosen(CalendarValues& values, Date date) {
    values.cal_jour = text::padded(day_of(date), 2);
    values.cal_mois = text::padded(month_of(date), 2);
    values.cal_annee = text::padded(year_of(date), 4);
}

// A day of a neighbouring month was clicked: the view moves there.
void follow_click_beyond_the_month(Program& program) {
    auto& values = program.calendar;
    if (values.cal_case == -1) return;
    auto const& cell = program.frm_calend.btnJour(values.cal_case);
    std::string_view const tag = cell.Tag.get();
    if (tag == current_month) return;
    values.cal_case = -1;
    int month = values.cal_annee_n * 12 + values.cal_mois_n - 1;
    month += tag == next_month ? 1 : -1;
    // Where the calendar ends the view stays.
    if (!date_of(1, month % 12 + 1, month / 12)) return;
    values.cal_annee = text::padded(month / 12, 4);
    values.cal_mois = text::padded(month % 12 + 1, 2);
    values.cal_jour = cell.Caption.get();
    refresh_numbers(values);
}

void slide_into_the_month(CalendarValues& values) {
    values.cal_jour_n =
        std::min(values.cal_jour_n, NbrJours(values.cal_mois_n, values.cal_annee_n));
    values.cal_jour_n = std::max(values.cal_jour_n, 1);
    values.cal_jour = text::padded(values.cal_jour_n, 2);
}

void fill_cell(screen::Button& cell, int day, Colour ground, std::string_view tag) {
    cell.Caption = std::to_string(day);
    cell.BackColor = ground;
    cell.Tag = tag;
    cell.ToolTipText = "";
}

struct Holiday {
    int day;
    int month;
    std::string_view tooltip;
    bool marked_as_next_month;
};

// In the order of their marks. That those of December and January stay unmarked from the other
// side of the new year, and others from the month before, is how the calendar has always been.
// clang-format off
constexpr std::array<Holiday, 8> fixed_holidays{{
    { 1,  1, "1er Janvier",                true},
    { 1,  5, "Fête du travail",            true},
    { 8,  5, "Armistice 8 mai 1945",       true},
    {14,  7, "Fête nationnale",            false},
    {15,  8, "Assomption",                 false},
    { 1, 11, "Toussaint",                  true},
    {11, 11, "Armistice 11 Novembre 1918", false},
    {25, 12, "Noël",                       false},
}};
// clang-format on

// The first cell of a month that bears `day`.
std::optional<int> find_cell(FrmCalend const& window, int day, std::string_view tag) {
    std::string const caption = std::to_string(day);
    for (int i = 0; i < cell_count; ++i) {
        auto const& cell = window.btnJour(i);
        if (cell.Caption.get() == caption && cell.Tag.get() == tag) return i;
    }
    return {};
}

void mark_holiday(screen::Button& cell, std::string_view tooltip) {
    cell.BackColor = holiday_ground;
    cell.ToolTipText = tooltip;
}

void mark_fixed_holidays(Program& program) {
    auto& window = program.frm_calend;
    int const view = program.calendar.cal_mois_n;
    for (auto const& holiday : fixed_holidays) {
        std::optional<int> cell;
        if (view == holiday.month) {
            cell = find_cell(window, holiday.day, current_month);
        } else if (holiday.marked_as_next_month && view + 1 == holiday.month) {
            cell = find_cell(window, holiday.day, next_month);
        }
        if (cell) mark_holiday(window.btnJour(*cell), holiday.tooltip);
    }
}

// A holiday that follows Easter, in the view of its month or of a neighbour.
std::optional<int> find_movable(Program const& program, Date date) {
    int const view = program.calendar.cal_mois_n;
    int const month = month_of(date);
    std::string_view const tag = month == view       ? current_month
                                 : month == view - 1 ? previous_month
                                 : month == view + 1 ? next_month
                                                     : std::string_view{};
    if (tag.empty()) return {};
    return find_cell(program.frm_calend, day_of(date), tag);
}

void mark_movable_holidays(Program& program) {
    auto& window = program.frm_calend;
    auto const sunday = easter_sunday(program.calendar.cal_annee_n);
    if (sunday.month < 3 || sunday.month > 4) {
        program.platform.box("Erreur",
                             "Erreur dans le calcul de la date de pâques !\rLe mois (valeur de "
                             "N) doit être 3 ou 4 ==> N=" +
                                 std::to_string(sunday.month),
                             BoxButtons::ok);
    }
    auto const easter = date_of(sunday.day, sunday.month, program.calendar.cal_annee_n);
    if (!easter) return;
    auto const mark = [&](Date date, std::string_view tooltip) {
        auto const cell = find_movable(program, date);
        if (cell) mark_holiday(window.btnJour(*cell), tooltip);
        return cell;
    };
    auto const sunday_cell = mark(*easter, "Dimanche de paques");
    // The cell after the Sunday's, even across a row; past the last there is none.
    if (sunday_cell && *sunday_cell + 1 < cell_count) {
        mark_holiday(window.btnJour(*sunday_cell + 1), "Lundi de paques");
    }
    mark(*easter + std::chrono::days{39}, "Jeudi de l'Ascension");
    mark(*easter + std::chrono::days{50}, "Lundi de Pentecôte");
}

void CouleurFerie(Program& program) {
    auto& window = program.frm_calend;
    if (window.chkWeek.Value == 1) {
        for (int saturday = 5; saturday < cell_count; saturday += 7) {
            window.btnJour(saturday).BackColor = weekend_ground;
            window.btnJour(saturday + 1).BackColor = weekend_ground;
        }
    }
    if (window.chkFerie.Value != 1) return;
    mark_movable_holidays(program);
    mark_fixed_holidays(program);
}

// Redraws the grid for the chosen date.
void CalculDate(Program& program) {
    auto& window = program.frm_calend;
    auto& values = program.calendar;
    values.cal_calcul = true;
    refresh_numbers(values);
    follow_click_beyond_the_month(program);
    slide_into_the_month(values);
    int const month = values.cal_mois_n;
    int const year = values.cal_annee_n;
    Date const first = *date_of(1, month, year);
    Date const day_before = first - std::chrono::days{1};
    // Monday is 1; so many cells of the month before stand first, a whole row where the month
    // begins on a Monday.
    int const before = (weekday_of(day_before) + 5) % 7 + 1;
    int const days = NbrJours(month, year);
    int previous = day_of(day_before);
    for (int i = before - 1; i >= 0; --i) {
        fill_cell(window.btnJour(i), previous--, other_month_ground, previous_month);
    }
    if (values.cal_case == -1) values.cal_case = before + values.cal_jour_n - 1;
    for (int i = 0; i < days; ++i) {
        fill_cell(window.btnJour(before + i), i + 1, program.scheme_colours.couleur_liste,
                  current_month);
    }
    for (int i = before + days; i < cell_count; ++i) {
        fill_cell(window.btnJour(i), i - before - days + 1, other_month_ground, next_month);
    }
    CouleurFerie(program);
    std::string const words = long_date(*date_of(values.cal_jour_n, month, year));
    window.btnJour(values.cal_case).BackColor = chosen_ground;
    window.btnJour(values.cal_case).ToolTipText = words;
    values.cal_case = -1;
    bool const listed = year >= first_listed_year && year <= last_listed_year;
    window.cAn.ListIndex = listed ? year - first_listed_year : -1;
    window.cMois.ListIndex = month - 1;
    window.lblDate.Caption = words;
    values.cal_calcul = false;
}

std::string time_text(double seconds) {
    int const whole = static_cast<int>(seconds);
    return text::padded(whole / 3600, 2) + ":" + text::padded(whole / 60 % 60, 2) + ":" +
           text::padded(whole % 60, 2);
}

void show_time(Program& program) {
    program.frm_calend.Label_Heure.Caption =
        time_text(program.platform.seconds_since_midnight());
}

void load(Program& program) {
    auto& window = program.frm_calend;
    auto& values = program.calendar;
    Date const today = program.platform.today();
    window.Label_horloge.Caption = write_date(today);
    show_time(program);
    window.Stacking = screen::Stacking::topmost;
    // The marks of the last opening go without a drawing of their own: the one below shows all.
    window.chkWeek.Value.preset(0);
    window.chkFerie.Value.preset(0);
    window.cAn.clear();
    for (int year = first_listed_year; year <= last_listed_year; ++year) {
        window.cAn.add(std::to_string(year));
    }
    window.cMois.clear();
    for (int month = 1; month <= 12; ++month) {
        window.cMois.add(std::string{month_name(month)});
    }
    set_chosen(values, today);
    values.cal_case = -1;
    CalculDate(program);
}

void calculate_unless_running(Program& program) {
    if (!program.calendar.cal_calcul) CalculDate(program);
}

void day_clicked(Program& program, int index) {
    auto& values = program.calendar;
    values.cal_case = index;
    values.cal_jour = text::two_digits(program.frm_calend.btnJour(index).Caption.get());
    program.screen.move_focus(program.frm_calend.txtDate);
    calculate_unless_running(program);
}

void year_clicked(Program& program) {
    auto& values = program.calendar;
    // Beyond the years listed none is selected.
    if (program.frm_calend.cAn.ListIndex < 0) return;
    values.cal_annee = text::padded(text::number_of(program.frm_calend.cAn.selected()), 4);
    values.cal_jour = text::two_digits(values.cal_jour);
    calculate_unless_running(program);
}

void month_clicked(Program& program) {
    auto& values = program.calendar;
    values.cal_mois = text::padded(program.frm_calend.cMois.ListIndex + 1, 2);
    values.cal_jour = text::two_digits(values.cal_jour);
    calculate_unless_running(program);
}

void MnuCalendrier_click(Program& program) {
    auto& window = program.frm_calend;
    auto const ground = program.scheme_colours.couleur_fond_fenetre;
    window.BackColor = ground;
    window.chkWeek.BackColor = ground;
    window.chkFerie.BackColor = ground;
    window.BtnToday.BackColor = ground;
    window.lblDate.BackColor = program.scheme_colours.couleur_titre_fenetre;
    window.open();
}

}  // namespace

void wire_calendar_window(Program& program) {
    auto& window = program.frm_calend;
    program.form1.MnuCalendrier.on_click = [&program] { MnuCalendrier_click(program); };
    window.on_load = [&program] { load(program); };
    window.on_close = [&program] { program.frm_calend.unload(); };
    for (int const index : window.btnJour.indexes()) {
        window.btnJour(index).on_click = [&program, index] { day_clicked(program, index); };
    }
    window.BtnToday.on_click = [&program] {
        set_chosen(program.calendar, program.platform.today());
        program.calendar.cal_case = -1;
        CalculDate(program);
    };
    window.cAn.on_click = [&program] { year_clicked(program); };
    window.cMois.on_click = [&program] { month_clicked(program); };
    window.chkWeek.on_click = [&program] { CalculDate(program); };
    window.chkFerie.on_click = [&program] { CalculDate(program); };
    window.Timer1.on_tick = [&program] { show_time(program); };
}

}  // namespace navarun
