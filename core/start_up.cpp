// The first calculation and the last question.
#include "core/start_up.h"

#include <algorithm>
#include <array>

#include "chart/kundali.h"
#include "core/birth_date_entry.h"
#include "core/date_parts.h"
#include "core/dialogue.h"
#include "files/address_book.h"
#include "files/browser.h"
#include "files/settings.h"
#include "periods/age_scroll.h"
#include "periods/cycle_window.h"
#include "periods/maha_dasha.h"
#include "periods/tri_deva.h"
#include "periods/year_month_lords.h"
#include "shell/image_store.h"
#include "shell/program.h"
#include "zodiac/number_texts.h"
#include "zodiac/solar_position.h"

namespace navarun {

namespace {

// The program's own site first (the distributor sets the real one), then sites of history and
// biography for the practitioner's research.
constexpr std::array<std::string_view, 10> default_addresses{
    "www.navarun.example", "fr.wikipedia.org", "www.herodote.net", "www.larousse.fr",
    "www.universalis.fr",  "gallica.bnf.fr",   "data.bnf.fr",      "www.britannica.com",
    "www.biography.com",   "www.geneanet.org",
};

void give_pointers(Form1& form) {
    for (int cell = 1; cell <= 12; ++cell) {
        form.Label_mois(cell).MouseIcon = picture::hand_cursor;
        form.Label_Dasha(cell).MouseIcon = picture::hand_cursor;
        form.Label_Solaire(cell).MouseIcon = picture::hand_cursor;
    }
    form.Picture_PHOTO.MouseIcon = picture::hand_cursor;
    form.File_Fichier.MouseIcon = picture::hand_cursor;
    form.List_Internet.MouseIcon = picture::hand_cursor;
}

void give_portrait_and_folders(Form1& form) {
    form.Picture_PHOTO.Picture = picture::ganesha;
    show_folder_buttons(form, 1);
}

void refuse_second_instance(Program& program) {
    if (program.instance.take(program.application_folder)) return;
    program.platform.box("N.A.V.A.R.U.N", "Le logiciel N.A.V.A.R.U.N est déjà actif !",
                         BoxButtons::ok);
    throw ProgramEnded{};
}

void set_first_date(Program& program) {
    auto& birth = program.consultation.birth;
    birth.set_jour_naissance("01");
    birth.set_mois_naissance("01");
    birth.set_siecle_naissance("19");
    birth.set_annee_naissance("00");
    write_date_combos(program);
}

// Nothing is saved.
void Quitter_Navarun(Program& program) {
    program.dialogue.titre_dialogue = "QUITTER";
    program.dialogue.texte_dialogue = "VOULEZ-VOUS QUITTER N.A.V.A.R.U.N ?";
    boiteDialogue(program);
    if (program.dialogue.reponse_dialogue == 1) throw ProgramEnded{};
}

}  // namespace

void Form_Load(Program& program) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    auto& birth = consultation.birth;
    refuse_second_instance(program);
    std::ranges::copy(default_addresses, program.url_defaut.begin());
    give_pointers(form);
    form.Command_Disk_Vert.Picture = picture::saved;
    form.Command_reset.Picture = picture::begin_anew;
    program.periods.cycle_partiel_actif = false;
    cree_repertoire(program);
    set_paths(program.folders);
    Fichier_config(program);
    Choix_Couleur_Kundali(program);
    create_address_book(program);
    give_portrait_and_folders(form);
    form.HScroll_age.Maximum = greatest_age;
    set_first_date(program);
    consultation.age_courant = 1;
    consultation.annee_solaire = "1900";
    // The blanks round the stroke stay until the day or month is next written.
    birth.reword_jour_mois_anniv(birth.jour_naissance() + " / " + birth.mois_naissance());
    show_cycle_year(program, *read_date_parts(birth.date_naissance()),
                    consultation.age_courant);
    // So that the grid can turn true at the end.
    form.HScroll_age.Tag = "ROUGE";
    Position_solaire(program);
    seigneur_annee(program);
    Seigneur_Mois(program);
    Maha_Dasha(program);
    defile_MahaDasha(program);
    Dinaka_Punanka_Text(program);
    cycle20ans(program);
    change_couleurAge(program, "VERT");
    triDeva(program);
}

void wire_start_up(Program& program) {
    // Closing by the frame asks as well, and the window stays where the user declines.
    program.form1.on_close = [&program] { Quitter_Navarun(program); };
    program.form1.MnuQuitter.on_click = [&program] { Quitter_Navarun(program); };
}

}  // namespace navarun
