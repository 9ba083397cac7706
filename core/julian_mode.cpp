// The Julian mode of the birth date.
#include "core/julian_mode.h"

#include <array>

#include "core/generate.h"
#include "core/julian_calendar.h"
#include "core/weekday_lord.h"
#include "core/weekdays.h"
#include "periods/age_scroll.h"
#include "periods/maha_dasha.h"
#include "periods/partial_cycle.h"
#include "periods/year_month_lords.h"
#include "shell/image_store.h"
#include "shell/program.h"
#include "zodiac/solar_position.h"

namespace navarun {

namespace {

struct IndicatorRow {
    std::string_view caption;
    screen::Colour fore;
    bool picture_shown;
};

// In the order of the indicators. Both Julian wordings stay: after a click the one of the menu
// stands, and the next generation replaces it by the other.
// clang-format off
constexpr std::array<IndicatorRow, 3> indicators{{
    {"Naissance 1600 - 2199", screen::standard_colour(0),  false},
    {"Date en cal. Julien",   screen::standard_colour(12), true},
    {"Date du cal. Julien",   screen::standard_colour(12), true},
}};
// clang-format on

void keep_conversion(Consultation& consultation, std::string const& date) {
    consultation.date_convertie = date;
    bool const converted = !date.empty();
    consultation.jour_converti = converted ? date.substr(0, 2) : "";
    consultation.mois_converti = converted ? date.substr(3, 2) : "";
    consultation.annee_convertie = converted ? date.substr(6) : "";
}

void Mnu_Julien_click(Program& program) {
    auto& form = program.form1;
    CyclePartiel_annule(program);
    form.Command_Disk_Vert.Picture = picture::unsaved;
    bool const julian = !form.Mnu_Julien.Checked;
    form.Mnu_Julien.Checked = julian;
    program.consultation.julien_actif = julian ? 1 : 0;
    form.HScroll_age.Value = 1;
    // Not the order of a generation: the periods come before the lords of year and months, and
    // the grid is left stale.
    cycle(program);
    Position_solaire(program);
    trouverJourdeSemaine(program);
    Maha_Dasha(program);
    seigneur_annee(program);
    Seigneur_Mois(program);
    defile_MahaDasha(program);
    show_calendar(program,
                  julian ? CalendarIndicator::julian_chosen : CalendarIndicator::gregorian);
}

void tell_gregorian_date(Program& program) {
    auto const& text = program.consultation.date_convertie;
    auto const date = read_date(text);
    if (!date) return;
    std::string tooltip = "Grégorien: ";
    tooltip.append(weekday(weekday_of(*date)).short_name).append(" ").append(text);
    program.form1.Image_cal_Julien.ToolTipText = tooltip;
}

}  // namespace

void show_calendar(Program& program, CalendarIndicator indicator) {
    auto const& row = indicators[static_cast<std::size_t>(indicator)];
    auto& form = program.form1;
    form.Label_cal_julien.Caption = row.caption;
    form.Label_cal_julien.ForeColor = row.fore;
    form.Image_cal_Julien.Visible = row.picture_shown;
}

std::string Conversion_JG(Program& program) {
    auto& consultation = program.consultation;
    using Outcome = JulianConversion::Outcome;
    auto const conversion = julian_to_gregorian(consultation.birth.date_naissance());
    consultation.birth.reword_date_naissance(conversion.read_as);
    if (conversion.outcome == Outcome::no_date) {
        program.platform.box("Erreur", "Mauvais format de date !", BoxButtons::ok);
        return {};
    }
    std::string date = conversion.gregorian ? write_date(*conversion.gregorian) : "";
    keep_conversion(consultation, date);
    return date;
}

void JG_reset(Program& program) {
    program.form1.Mnu_Julien.Checked = false;
    show_calendar(program, CalendarIndicator::gregorian);
}

void wire_julian_mode(Program& program) {
    auto& form = program.form1;
    form.Mnu_Julien.on_click = [&program] { Mnu_Julien_click(program); };
    form.Image_cal_Julien.on_click = [&program] { Mnu_Julien_click(program); };
    form.Image_cal_Julien.on_mouse_move = [&program](screen::Mouse const&) {
        tell_gregorian_date(program);
    };
}

}  // namespace navarun
