// The settings of the program.
#include "files/settings.h"

#include "core/lords.h"
#include "files/delimited.h"
#include "files/durable_file.h"
#include "periods/maha_dasha.h"
#include "periods/partial_cycle.h"
#include "periods/year_month_lords.h"
#include "shell/program.h"

namespace navarun {

namespace {

// The rows of names, in points: short names are shown larger.
constexpr double full_name_size = 13;
constexpr double short_name_size = 14;

void set_name_size(Form1& form, double points) {
    for (int cell = 1; cell <= 12; ++cell) {
        form.Label_Dasha(cell).FontSize = points;
        form.Label_annee(cell).FontSize = points;
        form.Label_mois(cell).FontSize = points;
    }
}

void Mnu_abrege_click(Program& program) {
    auto& form = program.form1;
    CyclePartiel_annule(program);
    bool const abridged = !form.Mnu_abrege.Checked;
    form.Mnu_abrege.Checked = abridged;
    program.settings.decalage_nom_seigneur = abridged ? short_names : 0;
    set_name_size(form, abridged ? short_name_size : full_name_size);
    write_settings(program);
    Seigneur_Mois(program);
    seigneur_annee(program);
    Maha_Dasha(program);
}

}  // namespace

void Fichier_config(Program& program) {
    auto const& shown_as = program.folders.chemin_config;
    auto const path = program.path_of(shown_as);
    auto& settings = program.settings;
    if (FileExists(path)) {
        DelimitedReader reader{read_file(path, shown_as), shown_as};
        // The last number wins, though a second one was written for the names of the lords.
        while (!reader.at_end()) settings.couleur_kundali = reader.read_byte();
    } else {
        DelimitedWriter writer;
        writer.number(settings.couleur_kundali).end_record();
        write_file(path, writer.bytes(), shown_as);
    }
    // No file brings the short names back, as each of its numbers is read as the scheme. Were
    // they to come back one day, the window would have to open with them.
    if (settings.decalage_nom_seigneur == short_names) {
        program.form1.Mnu_abrege.Checked = true;
        set_name_size(program.form1, short_name_size);
    }
}

void write_settings(Program& program) {
    auto const& settings = program.settings;
    auto const& shown_as = program.folders.chemin_config;
    DelimitedWriter writer;
    writer.number(settings.couleur_kundali).number(settings.decalage_nom_seigneur).end_record();
    write_file(program.path_of(shown_as), writer.bytes(), shown_as);
}

void wire_settings(Program& program) {
    program.form1.Mnu_abrege.on_click = [&program] { Mnu_abrege_click(program); };
}

}  // namespace navarun
