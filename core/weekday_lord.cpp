// The weekday lord of a consultation.
#include "core/weekday_lord.h"

#include "core/weekdays.h"
#include "periods/age_scroll.h"
#include "shell/program.h"
#include "zodiac/number_texts.h"

namespace navarun {

namespace {

// From this birth year on no calendar but the Gregorian makes sense.
constexpr int first_year_without_julian = 2000;

}  // namespace

void trouverJourdeSemaine(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    auto const& birth = consultation.birth;
    bool const julian = form.Mnu_Julien.Checked;
    program.date_entry.weekday_of_date = birth.date_naissance();
    program.date_entry.weekday_of_julian = julian;

    form.Mnu_Julien.Enabled = birth.year() < first_year_without_julian;
    auto const date = read_date(julian ? consultation.date_convertie : birth.date_naissance());
    if (date) {
        consultation.numero_jour = weekday_of(*date);
        form.Label_jourdeSemaine.Caption = weekday(consultation.numero_jour).name;
    }
    change_couleurAge(program, "ROUGE");
    if (date) {
        auto const& day = weekday(consultation.numero_jour);
        auto const& lord = row_of(day.lord);
        form.Label_divinite.BackColor = lord.back;
        form.Label_divinite.ForeColor = lord.fore;
        form.Label_divinite.Caption = divinity_caption(day);
        form.Text_jourdeSemaine.Text = weekday_reading(day);
        consultation.seigneur_jour = number_of(day.lord);
        consultation.texte_jour = form.Text_jourdeSemaine.Text.get();
    }
    Dinanka_Purnanka(program);
}

bool weekday_is_current(Program const& program) {
    auto const& entry = program.date_entry;
    return entry.weekday_of_date == program.consultation.birth.date_naissance() &&
           entry.weekday_of_julian == program.form1.Mnu_Julien.Checked;
}

}  // namespace navarun
