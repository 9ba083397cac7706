// The initials of the consultation.
#include "readings/name_analysis.h"

#include "core/dialogue.h"
#include "core/text.h"
#include "core/weekday_lord.h"
#include "readings/initials.h"
#include "shell/program.h"

namespace navarun {

void initial_Text(Program& program) {
    auto& form = program.form1;
    auto& reading = program.name_reading;
    reading.texte_initiales.clear();
    program.record_values.prenom_lu = form.Text_prenom.Text.get();
    program.record_values.nom_lu = form.Text_nom.Text.get();
    auto const& first_name = program.record_values.prenom_lu;
    auto const& last_name = program.record_values.nom_lu;
    if (first_name.empty() && last_name.empty()) {
        form.Text_jourdeSemaine.Text = "Aucun prénom ou nom !";
        Pause(program, 1.5F);
        trouverJourdeSemaine(program);
        return;
    }
    for (auto const& letter : initials_of(first_name, last_name)) {
        if (auto const found = letter_text(letter)) reading.texte_lettre = *found;
        reading.texte_initiales.append(reading.texte_lettre);
        reading.texte_initiales.append(text::line_break).append(text::line_break);
    }
}

}  // namespace navarun
