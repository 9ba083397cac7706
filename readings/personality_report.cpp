// Assembling and showing the report.
#include "readings/personality_report.h"

#include "core/dialogue.h"
#include "core/text.h"
#include "files/delimited.h"
#include "files/durable_file.h"
#include "files/records.h"
#include "shell/program.h"
#include "zodiac/number_texts.h"

namespace navarun {

namespace {

using text::line_break;

constexpr int bar_length = 19;

void MnuPersonalite_click(Program& program) {
    std::string const report = personality_report(program);
    auto const& form = program.form1;
    std::string const name =
        form.Text_prenom.Text.get() + " " + form.Text_nom.Text.get() + ".txt";
    std::string const shown_as = program.folders.dossier_ressources + name;
    auto const path = program.path_of(shown_as);
    refuse_bad_file_name(name);
    DelimitedWriter writer;
    writer.text(report).end_record();
    write_file(path, writer.bytes(), shown_as);
    if (!program.platform.has_text_viewer()) {
        std::string message = "Vous n'avez plus";
        transient_message(program, message.append(line_break).append("ce fichier !"), 2);
        return;
    }
    // The viewer takes the text over before the file goes.
    program.platform.view_text(path, shown_as);
    delete_file(path, shown_as);
}

}  // namespace

std::string personality_report(Program& program) {
    auto const& form = program.form1;
    auto const& consultation = program.consultation;
    Nakshatra_Text(program);
    static std::string const bar_1 = text::repeated("_", bar_length);
    static std::string const bar_2 = text::repeated("¯", bar_length);
    std::string const& first_name = form.Text_prenom.Text.get();
    std::string const& last_name = form.Text_nom.Text.get();
    bool const nameless = first_name.empty() && last_name.empty();

    std::string report;
    auto const add = [&](auto const&... parts) { (report.append(parts), ...); };
    add(nameless ? "NOM INCONNU" : text::upper(first_name + " " + last_name), line_break);
    add("Date de naissance: ", form.Label_jourdeSemaine.Caption.get(), " ",
        consultation.birth.date_naissance(), line_break);
    add(bar_1, line_break);
    add("Nakshatra N°: ", form.Label_nomNakshatra.Caption.get(),
        ". gouverné par: ", form.Label_Nak.Caption.get(), ".", line_break,
        consultation.texte_nakshatra, line_break);
    add(bar_2, line_break);
    if (nameless) {
        add("Il n'y a pas d'initiales a analyser !", line_break, line_break);
    } else {
        add("Vos initiales sont: ", line_break, program.name_reading.texte_initiales);
    }
    add(bar_2, line_break);
    add("Votre jour de semaine est le :", form.Label_jourdeSemaine.Caption.get(), line_break,
        consultation.texte_jour, line_break);
    add(bar_1, line_break, line_break, "votre Surya natal se trouve à ",
        form.Label_zodiac.Caption.get(), line_break,
        " vous êtes : ", form.Text_zodiac.Text.get(), line_break);
    add(bar_2, line_break);
    add(consultation.texte_dinanka, consultation.texte_purnanka);
    return report;
}

void wire_personality_report(Program& program) {
    program.form1.MnuPersonalite.on_click = [&program] { MnuPersonalite_click(program); };
}

}  // namespace navarun
