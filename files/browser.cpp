// The record browser.
#include "files/browser.h"

#include <algorithm>
#include <array>

#include "core/dialogue.h"
#include "core/small_number.h"
#include "files/durable_file.h"
#include "files/file_list.h"
#include "files/portrait.h"
#include "files/records.h"
#include "print/preview.h"
#include "readings/destiny_palace.h"
#include "shell/image_store.h"
#include "shell/program.h"

namespace navarun {

namespace {

using screen::Colour;

Endings const record_endings{".fcy"};

constexpr Colour image_list_ground{0xFFFFC0};
constexpr std::array<Colour, 2> record_list_grounds{Colour{0x000040}, Colour{0x400040}};

// The two record folders, and how their buttons look while one of them is active.
struct FolderRow {
    std::string_view active;
    std::string_view other;
    int picture_of_1;
    std::string_view tooltip_of_1;
    int picture_of_2;
    std::string_view tooltip_of_2;
};

constexpr std::array<FolderRow, 2> folder_rows{{
    {"DATA1/", "DATA2/", 1, "Dossier 1 Actif", 4, "Dossier 2 Inactif"},
    {"DATA2/", "DATA1/", 2, "Dossier 1 Inactif", 3, "Dossier 2 Actif"},
}};

FolderRow const& row_of_folder(int folder) {
    return folder_rows.at(static_cast<std::size_t>(folder - 1));
}

bool shows_records(Program const& program) {
    auto const ground = program.form1.File_Fichier.BackColor.get();
    return std::ranges::find(record_list_grounds, ground) != record_list_grounds.end();
}

bool browser_shows_images(Program const& program) {
    return program.form1.File_Fichier.BackColor.get() == image_list_ground;
}

void count_entries(Program& program) {
    program.form1.Label_Nbr_Fiche.Caption = std::to_string(program.form1.File_Fichier.count());
}

void make_folder_active(Program& program, int folder) {
    auto const& row = row_of_folder(folder);
    auto& folders = program.folders;
    folders.dossier_actif = folders.dossier_ressources + std::string{row.active};
    folders.dossier_autre = folders.dossier_ressources + std::string{row.other};
    show_folder_buttons(program.form1, folder);
}

void show_folder(Program& program, std::string const& folder, Endings const& endings) {
    program.form1.File_Fichier.set_source(
        [&program, folder, &endings] { return list_files(program.path_of(folder), endings); });
}

// The record colour that the scheme left in the list's tag.
Colour record_ground(Form1 const& form) {
    for (auto const ground : record_list_grounds) {
        if (to_text(ground) == form.File_Fichier.Tag.get()) return ground;
    }
    return record_list_grounds.front();
}

void Charge_click(Program& program, int folder) {
    auto& form = program.form1;
    form.Frame_Internet.Visible = false;
    close_destiny_palace(program);
    make_folder_active(program, folder);
    apercu_impression_Invisible(program);
    form.Text_definition_palais.Visible = false;
    form.Text_Cherche.Text = "";
    if (form.Frame_FileFichier.Visible) {
        form.Frame_FileFichier.Visible = false;
        give_reset_its_role_back(form);
        return;
    }
    form.File_Fichier.ForeColor = screen::white;
    form.File_Fichier.ListIndex = -1;
    program.record_values.fichier_selectionne.clear();
    form.Frame_FileFichier.Visible = true;
    form.Command_reset.Picture = picture::erase;
    form.Command_reset.ToolTipText = "Efface le fichier sélectionné";
    form.File_Fichier.ToolTipText = "";
    form.Label_Nbr_Fiche.ToolTipText = "Total de vos fichiers";
    program.screen.move_focus(form.Text_Cherche);
    show_folder(program, program.folders.dossier_actif, record_endings);
    count_entries(program);
    leave_image_mode(program);
}

// Opens the panel on the portraits, or closes it.
void Bouton_Image_click(Program& program) {
    auto& form = program.form1;
    form.Text_Cherche.Text = "";
    form.Frame_Internet.Visible = false;
    apercu_impression_Invisible(program);
    form.Text_definition_palais.Visible = false;
    form.Label_Nbr_Fiche.Caption = "";
    form.File_Fichier.ToolTipText = "";
    if (form.Frame_FileFichier.Visible) {
        form.Frame_FileFichier.Visible = false;
        give_reset_its_role_back(form);
        return;
    }
    form.Command_reset.Picture = picture::erase_portrait;
    form.Frame_FileFichier.Visible = true;
    form.Command_reset.ToolTipText = "Supprime l'image sélectionnée";
    show_folder(program, program.folders.dossier_image, portrait_endings);
    program.screen.move_focus(form.Text_Cherche);
    form.File_Fichier.BackColor = image_list_ground;
    form.File_Fichier.ForeColor = screen::black;
    count_entries(program);
    form.File_Fichier.ListIndex = -1;
    program.record_values.fichier_selectionne.clear();
}

void deplace_fichier(Program& program) {
    auto const& folders = program.folders;
    std::string const name = program.record_values.fichier_selectionne;
    if (name.empty()) return;
    move_file(program.path_of(folders.dossier_actif + name),
              program.path_of(folders.dossier_autre + name), name);
    refresh_list(program);
    count_entries(program);
}

void search(Program& program) {
    auto& list = program.form1.File_Fichier;
    auto const& wanted = program.form1.Text_Cherche.Text.get();
    int const found = wanted.empty() ? -1 : SearchListBox(list.entries(), wanted, -1, false);
    list.ListIndex = found;
    if (found < 0) program.record_values.fichier_selectionne.clear();
}

void list_clicked(Program& program) {
    auto& list = program.form1.File_Fichier;
    program.record_values.fichier_selectionne = list.selected();
    list.ToolTipText = browser_shows_images(program)
                           ? "SUPPR supprime l'image"
                           : "CTRL déplace le fichier, SUPPR supprime le fichier";
}

void list_double_clicked(Program& program) {
    auto& list = program.form1.File_Fichier;
    if (list.ListIndex < 0) return;
    if (shows_records(program)) {
        load_selected_record(program);
    } else if (browser_shows_images(program)) {
        choose_portrait(program, list.selected());
    } else {
        close_browser(program);
    }
}

void list_key_down(Program& program, int code) {
    auto& form = program.form1;
    bool const has_selection = form.File_Fichier.ListIndex >= 0;
    if (!browser_shows_images(program) && code == key::control && has_selection) {
        // Whatever was asked about meanwhile: what is dragged is what is selected.
        program.record_values.fichier_selectionne = form.File_Fichier.selected();
        form.Label_deplace.Left = program.browser.deplace_x;
        form.Label_deplace.Top = program.browser.deplace_y;
        program.screen.begin_drag(form.Label_deplace);
    }
    if (program.platform.key_is_held(key::erase)) Efface_fichier(program);
}

// The drag carrier sits just under the pointer, in twips.
constexpr int below_the_pointer = 180;

void list_mouse_move(Program& program, screen::Mouse const& mouse) {
    constexpr char const* attempted = "Une fiche a été tirée trop loin de sa liste.";
    program.browser.deplace_x = small_number(mouse.x, attempted);
    program.browser.deplace_y = small_number(mouse.y + below_the_pointer, attempted);
}

}  // namespace

void show_folder_buttons(Form1& form, int active) {
    auto const& row = row_of_folder(active);
    form.Charge(1).Picture = screen::Picture{"DOSSIER", row.picture_of_1};
    form.Charge(1).ToolTipText = row.tooltip_of_1;
    form.Charge(2).Picture = screen::Picture{"DOSSIER", row.picture_of_2};
    form.Charge(2).ToolTipText = row.tooltip_of_2;
}

void give_reset_its_role_back(Form1& form) {
    form.Command_reset.Picture = picture::begin_anew;
    form.Command_reset.ToolTipText = "Initialise";
}

void refresh_list(Program& program) {
    program.form1.File_Fichier.refresh();
    program.record_values.fichier_selectionne.clear();
}

void leave_image_mode(Program& program) {
    program.form1.File_Fichier.BackColor = record_ground(program.form1);
}

void close_browser(Program& program) {
    auto& form = program.form1;
    form.Frame_FileFichier.Visible = false;
    form.Text_Cherche.Text = "";
    give_reset_its_role_back(form);
}

void Efface_fichier(Program& program) {
    auto& form = program.form1;
    std::string const entry = form.File_Fichier.selected();
    if (entry.empty()) {
        transient_message(program, "Veuillez sélectionnez un fichier à effacer !", 2);
        return;
    }
    std::string const folder = browser_shows_images(program) ? program.folders.dossier_image
                                                             : program.folders.dossier_actif;
    program.record_values.fichier_selectionne = folder + entry;
    if (agrees_to_erase(program, entry)) {
        delete_file(program.path_of(folder + entry), entry);
        refresh_list(program);
    } else {
        program.record_values.fichier_selectionne = entry;
    }
    count_entries(program);
}

void wire_browser(Program& program) {
    auto& form = program.form1;
    for (int const folder : form.Charge.indexes()) {
        form.Charge(folder).on_click = [&program, folder] { Charge_click(program, folder); };
        form.Charge(folder).on_drag_drop = [&program] { deplace_fichier(program); };
    }
    form.Text_Cherche.on_change = [&program] { search(program); };
    form.Text_Cherche.on_key_press = [&program](char32_t character) {
        if (character == key::enter) list_double_clicked(program);
        return false;
    };
    auto& list = form.File_Fichier;
    // Until a folder is chosen the list stands on the folder of the program.
    show_folder(program, {}, record_endings);
    list.on_click = [&program] { list_clicked(program); };
    list.on_double_click = [&program] { list_double_clicked(program); };
    list.on_key_press = [&program](char32_t) {
        if (program.platform.key_is_held(key::enter)) list_double_clicked(program);
        return false;
    };
    list.on_key_down = [&program](int code) { list_key_down(program, code); };
    list.on_mouse_move = [&program](screen::Mouse const& mouse) {
        list_mouse_move(program, mouse);
    };
    form.Bouton_Image.on_click = [&program] { Bouton_Image_click(program); };
    // A record is no picture and no arrow.
    form.Bouton_Image.on_drag_over = [&program] { program.screen.end_drag(); };
    form.Picture_KUNDALI.on_drag_over = [&program] { program.screen.end_drag(); };
}

}  // namespace navarun
