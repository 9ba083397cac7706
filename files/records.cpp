// Records of the consultation.
#include "files/records.h"

#include <algorithm>
#include <string>
#include <variant>

#include "chart/kundali.h"
#include "chart/palace_colours.h"
#include "core/birth_date_entry.h"
#include "core/dialogue.h"
#include "core/generate.h"
#include "core/text.h"
#include "core/weekday_lord.h"
#include "files/address_book.h"
#include "files/browser.h"
#include "files/durable_file.h"
#include "files/failed_file.h"
#include "files/file_list.h"
#include "files/portrait.h"
#include "periods/age_scroll.h"
#include "periods/cycle_window.h"
#include "periods/maha_dasha.h"
#include "periods/partial_cycle.h"
#include "periods/tri_deva.h"
#include "periods/year_month_lords.h"
#include "print/preview.h"
#include "readings/name_analysis.h"
#include "shell/image_store.h"
#include "shell/program.h"
#include "zodiac/number_texts.h"
#include "zodiac/solar_position.h"

namespace navarun {

namespace {

using text::line_break;

// The birth date with a character between its parts.
std::string spelled_birth(BirthDate const& birth, std::string_view stroke) {
    std::string spelled = birth.jour_naissance();
    spelled.append(stroke).append(birth.mois_naissance()).append(stroke);
    return spelled.append(birth.siecle_naissance()).append(birth.annee_naissance());
}

void fill_in_missing_names(Program& program) {
    auto& form = program.form1;
    std::string const date_compacte = spelled_birth(program.consultation.birth, "_");
    auto const missing = [](screen::TextField const& name) { return name.Text.get().empty(); };
    if (missing(form.Text_prenom) && missing(form.Text_nom)) {
        form.Text_prenom.Text = "Consultant";
        form.Text_nom.Text = date_compacte;
    }
    if (missing(form.Text_prenom)) form.Text_prenom.Text = date_compacte;
    if (missing(form.Text_nom)) form.Text_nom.Text = date_compacte;
}

// Replaces any record of the same name. A missing name is replaced on screen too.
void Sauve_data(Program& program) {
    auto& form = program.form1;
    auto& values = program.record_values;
    fill_in_missing_names(program);
    std::string const name =
        form.Text_nom.Text.get() + " " + form.Text_prenom.Text.get() + ".fcy";
    values.chemin_fichier = program.folders.dossier_actif + name;
    values.note_consultant = form.Text_Note.Text.get();
    refuse_bad_file_name(name);
    write_file(program.path_of(values.chemin_fichier), record_bytes(record_on_screen(program)),
               name);
    refresh_list(program);
    transient_message(program, "Sauvegarde OK !", 1);
    form.Command_reset.Picture = picture::begin_anew;
}

void sauvegarde_confirmee(Program& program) {
    auto const& form = program.form1;
    std::string question = "VOULEZ-VOUS SAUVER: ";
    question.append(line_break).append(form.Text_prenom.Text.get()).append(" ");
    question.append(form.Text_nom.Text.get()).append(line_break);
    question.append(spelled_birth(program.consultation.birth, "/")).append(" ?");
    program.dialogue.titre_dialogue = "SAUVEGARDER";
    program.dialogue.texte_dialogue = question;
    boiteDialogue(program);
    if (program.dialogue.reponse_dialogue == 1) Sauve_data(program);
}

void put_on_screen(Program& program, Record const& record) {
    auto& form = program.form1;
    auto& consultation = program.consultation;
    consultation.birth.set_jour_naissance(record.day);
    consultation.birth.set_mois_naissance(record.month);
    consultation.birth.set_siecle_naissance(record.century);
    consultation.birth.set_annee_naissance(record.year);
    consultation.julien_actif = record.julian;
    consultation.fichier_photo = record.portrait;
    program.record_values.prenom_lu = record.first_name;
    program.record_values.nom_lu = record.last_name;
    program.record_values.note_consultant = record.note;
    form.Text_prenom.Text = record.first_name;
    form.Text_nom.Text = record.last_name;
    write_date_combos(program);
    form.Text_Note.Text = record.note;
    std::string trimmed = record.note;
    trimmed.erase(trimmed.find_last_not_of(' ') + 1);
    form.Text_Note.Text = trimmed;
    // Last, as the changes of the date fields have cleared it.
    form.Mnu_Julien.Checked = record.julian != 0;
}

void show_portrait(Program& program) {
    auto& form = program.form1;
    auto& portrait = program.consultation.fichier_photo;
    auto const name = std::get<std::string>(portrait);
    if (name.empty()) {
        form.Picture_PHOTO.Picture = picture::ganesha;
    } else if (FileExists(program.path_of(program.folders.dossier_image + name))) {
        affiche_image_ajustee(program, name);
    } else {
        // The name of a portrait that is gone becomes a truth value: an oddity that the records
        // of years hold.
        portrait = form.Picture_PHOTO.Picture.get() == picture::ganesha;
    }
}

void Charge_Data(Program& program) {
    take_boxes_off(program);
    auto const& name = program.record_values.fichier_selectionne;
    auto const path = program.path_of(program.folders.dossier_actif + name);
    for (auto const& record : read_records(read_file(path, name), name)) {
        put_on_screen(program, record);
    }
    initial_Text(program);
    Dinaka_Punanka_Text(program);
    if (std::holds_alternative<std::string>(program.consultation.fichier_photo)) {
        show_portrait(program);
    }
}

void compute(Program& program) {
    cycle(program);
    Position_solaire(program);
    trouverJourdeSemaine(program);
    seigneur_annee(program);
    Seigneur_Mois(program);
    Maha_Dasha(program);
    defile_MahaDasha(program);
}

}  // namespace

Record record_on_screen(Program& program) {
    auto const& form = program.form1;
    auto const& birth = program.consultation.birth;
    return {
        .first_name = form.Text_prenom.Text.get(),
        .last_name = form.Text_nom.Text.get(),
        .day = birth.jour_naissance(),
        .month = birth.mois_naissance(),
        .century = birth.siecle_naissance(),
        .year = birth.annee_naissance(),
        .julian = program.consultation.julien_actif,
        .portrait = program.consultation.fichier_photo,
        .note = form.Text_Note.Text.get(),
    };
}

void refuse_bad_file_name(std::string const& name) {
    if (std::ranges::none_of(name, is_refused_in_file_names)) return;
    fail(
        attempt::writing, name,
        "Un nom de fichier ne prend aucun de ces signes : / \\ : * ? \" < > |, ni fin de ligne "
        "ni autre signe de commande.");
}

void load_selected_record(Program& program) {
    auto& form = program.form1;
    apercu_impression_Invisible(program);
    efface_fleche(program);
    form.Mnu_Julien.Checked = false;
    program.record_values.fichier_selectionne = form.File_Fichier.selected();
    Charge_Data(program);
    if (!read_date(program.consultation.birth.date_naissance())) {
        change_couleurAge(program, "ROUGE");
        program.platform.box("Erreur", "Date de naissance invalide !", BoxButtons::ok);
        return;
    }
    compute(program);
    cycle20ans(program);
    form.Command_Disk_Vert.Enabled = true;
    form.Command_Disk_Vert.Picture = picture::saved;
    form.HScroll_age.Tag = "ROUGE";
    change_couleurAge(program, "VERT");
    triDeva(program);
    CyclePartiel_annule(program);
    close_browser(program);
}

void wire_records(Program& program) {
    auto& form = program.form1;
    form.Command_Disk_Vert.on_click = [&program] {
        if (program.form1.Frame_Internet.Visible) {
            Sauve_URL(program);
        } else {
            sauvegarde_confirmee(program);
        }
    };
    form.Text_Note.on_change = [&program] { couleur_Disk_Rouge_Vert(program); };
}

}  // namespace navarun
