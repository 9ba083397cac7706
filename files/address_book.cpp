// The addresses and their panel.
#include "files/address_book.h"

#include "chart/palace_colours.h"
#include "core/dialogue.h"
#include "files/browser.h"
#include "files/delimited.h"
#include "files/durable_file.h"
#include "readings/destiny_palace.h"
#include "shell/image_store.h"
#include "shell/program.h"

namespace navarun {

namespace {

template <typename Addresses>
void write_addresses(Program& program, Addresses const& addresses) {
    auto const& shown_as = program.folders.chemin_internet;
    DelimitedWriter writer;
    for (auto const& address : addresses) writer.text(address).end_record();
    write_file(program.path_of(shown_as), writer.bytes(), shown_as);
}

void read_addresses(Program& program) {
    auto const& shown_as = program.folders.chemin_internet;
    DelimitedReader reader{read_file(program.path_of(shown_as), shown_as), shown_as};
    while (!reader.at_end()) program.form1.List_Internet.add(reader.read_text());
}

void Bouton_Internet_click(Program& program) {
    auto& form = program.form1;
    form.Command_reset.Picture = picture::erase_address;
    close_destiny_palace(program);
    form.List_Internet.clear();
    if (form.Frame_Internet.Visible) {
        form.Frame_Internet.Visible = false;
        give_reset_its_role_back(form);
        return;
    }
    form.Command_reset.ToolTipText = "Supprime l'URL sélectionnée";
    form.Frame_Internet.Visible = true;
    form.List_Internet.ListIndex = -1;
    read_addresses(program);
    program.screen.move_focus(form.Text_New_URL);
}

}  // namespace

void create_address_book(Program& program) {
    auto const& shown_as = program.folders.chemin_internet;
    auto const book = program.path_of(shown_as);
    // A folder of that name is no book: the writing tells it.
    if (!is_free(book, shown_as) && FileExists(book)) return;
    program.record_values.chemin_fichier = program.folders.chemin_internet;
    write_addresses(program, program.url_defaut);
}

void Sauve_URL(Program& program) {
    auto& form = program.form1;
    form.List_Internet.add(form.Text_New_URL.Text.get());
    form.Text_New_URL.Text = "www.";
    write_addresses(program, form.List_Internet.entries());
}

void Efface_Url(Program& program) {
    auto& list = program.form1.List_Internet;
    std::string const address = list.selected();
    program.record_values.fichier_selectionne = address;
    if (address.empty()) {
        transient_message(program, "Veuillez sélectionnez une adresse à effacer !", 2.3F);
        return;
    }
    if (!agrees_to_erase(program, address)) return;
    list.remove(list.ListIndex);
    write_addresses(program, list.entries());
    list.ToolTipText = "";
}

void wire_address_book(Program& program) {
    auto& form = program.form1;
    form.Bouton_Internet.on_click = [&program] { Bouton_Internet_click(program); };
    form.List_Internet.on_click = [&program] {
        auto& list = program.form1.List_Internet;
        list.ToolTipText = list.selected();
    };
    form.List_Internet.on_double_click = [&program] {
        program.platform.open(program.form1.List_Internet.selected());
    };
    form.Text_New_URL.on_key_press = [&program](char32_t) {
        couleur_Disk_Rouge_Vert(program);
        return false;
    };
}

}  // namespace navarun
