// The rows of the year and of the months.
#include "periods/year_month_lords.h"

#include <optional>

#include "core/cells.h"
#include "core/date_parts.h"
#include "core/text.h"
#include "periods/cycle_lords.h"
#include "periods/emphasis.h"
#include "periods/row_dates.h"
#include "shell/program.h"

namespace navarun {

namespace {

// The year's name leaves its cell and goes to the cell of the age.
void deplace_seigneur_An(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    auto& periods = program.periods;
    form.Label_annee(consultation.colonne_age).Caption = "";
    // An age that has not moved counts as a step forward.
    periods.age_compare = periods.age_precedent == periods.age_scroll
                              ? periods.age_precedent - 1
                              : periods.age_precedent;
    periods.age_precedent = periods.age_scroll;
    consultation.colonne_age = cell_of_age(consultation.palais_index, periods.age_scroll);
    form.Label_annee(consultation.colonne_age).Visible = true;
    form.Label_annee(consultation.colonne_age).Caption = periods.nom_seigneur_an;
    // Only after a step forward does the column then point to the cell before the name.
    if (periods.age_scroll > periods.age_compare) {
        consultation.colonne_age = cell_before(consultation.colonne_age);
    }
}

// The month of the grid in which today lies; empty where today lies outside the cycle year, or
// no month starts in today's.
std::optional<int> first_cell_of_todays_month(Program& program, Date today) {
    auto& form = program.form1;
    auto const first_day = read_date(form.Label_anneedefile.Caption.get());
    if (!first_day) return {};
    int const days = days_between(*first_day, today);
    if (days < 0 || days > 365) return {};
    for (int cell = 1; cell <= 12; ++cell) {
        auto const start = read_date_parts(form.Label_MoisDate(cell).Caption.get());
        if (start && start->month() == YearMonthDay{today}.month()) return cell;
    }
    return {};
}

void mark_month_in_progress(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    Date const today = program.platform.today();
    auto const found = first_cell_of_todays_month(program, today);
    if (!found) return;
    int cell = *found;
    bool const begun = day_of(today) >= text::number_of(consultation.birth.jour_naissance());
    if (!begun) cell = cell_before(cell);
    emphasise(form.Label_mois(cell));
    // Before the day of the birthday the first month's date keeps its black.
    if (begun) form.Label_MoisDate(consultation.colonne_age).ForeColor = screen::grey;
    consultation.colonne_mois = cell;
    form.Label_MoisDate(cell).ForeColor = screen::black;
}

}  // namespace

void seigneur_annee(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    auto& periods = program.periods;
    consultation.seigneur_an = 0;
    if (consultation.colonne_age == 0) return;
    periods.annee_2chiffres =
        text::number_of(text::last(form.Label_anneedefile.Caption.get(), 2));
    consultation.seigneur_an = lord_of_year(
        consultation.seigneur_jour, text::number_of(consultation.birth.jour_naissance()),
        text::number_of(consultation.birth.mois_naissance()), periods.annee_2chiffres);
    form.Label_annee(consultation.colonne_age).Caption =
        program.name_of_lord(consultation.seigneur_an);
    periods.nom_seigneur_an = form.Label_annee(consultation.colonne_age).Caption.get();
    deplace_seigneur_An(program);
}

void take_year_shown(Program& program) {
    auto& consultation = program.consultation;
    std::string_view const shown = program.form1.Label_anneedefile.Caption.get();
    consultation.annee_defile = text::last(shown, 4);
    consultation.date_annee_courante = shown.substr(0, 6);
    consultation.date_annee_courante.append(consultation.annee_defile);
}

void Seigneur_Mois(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    auto& periods = program.periods;
    periods.pas_mois = 0;
    take_year_shown(program);

    int lord = lord_of_first_month(consultation.age_courant,
                                   text::number_of(consultation.birth.mois_naissance()),
                                   consultation.seigneur_an);
    for (auto& name : periods.noms_mois) {
        name = program.name_of_lord(lord);
        lord = next_month_lord(lord);
    }

    consultation.colonne_age = cell_of_age(consultation.palais_index, periods.age_scroll);
    auto const dates = row_dates(consultation.date_annee_courante, 1,
                                 is_leap_day(consultation.birth.date_naissance()));
    int cell = consultation.colonne_age;
    for (std::size_t i = 0; i < periods.noms_mois.size(); ++i, cell = cell_after(cell)) {
        auto& month = form.Label_mois(cell);
        month.Visible = true;
        month.Caption = periods.noms_mois[i];
        if (dates) form.Label_MoisDate(cell).Caption = std::string_view{(*dates)[i]};
        ++periods.pas_mois;
    }

    form.Label_mois(consultation.colonne_age).ForeColor = screen::standard_colour(9);
    form.Label_MoisDate(consultation.colonne_age).ForeColor = screen::black;
    consultation.colonne_mois = consultation.colonne_age;
    mark_month_in_progress(program);
}

void wire_year_month_lords(Program& program) {
    for (int cell = 1; cell <= 12; ++cell) {
        program.form1.Label_mois(cell).on_click = [&program, cell] {
            auto& form = program.form1;
            pick_by_hand(form.Label_mois, form.Label_MoisDate, cell);
            program.consultation.colonne_mois = cell;
        };
    }
}

}  // namespace navarun
