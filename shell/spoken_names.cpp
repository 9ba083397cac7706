// The table of names, and the sentences.
#include "shell/spoken_names.h"

#include <algorithm>
#include <array>

#include "core/lords.h"
#include "core/text.h"
#include "shell/image_store.h"
#include "shell/program.h"

namespace navarun {

namespace {

using screen::Control;
using screen::Kind;
using screen::Label;

// Controls that show a picture, a value or nothing, and what a person would call them.
struct Name {
    std::string_view form;
    std::string_view control;
    std::string_view spoken;
};
// clang-format off
constexpr Name names[]{
    {"Form1",             "Image_Titre",            "N.A.V.A.R.U.N"},
    {"Form1",             "Picture_KUNDALI",        "Carte des douze palais"},
    {"Form1",             "Text_definition_palais", "Définition du palais"},
    {"Form1",             "Text_prenom",            "Prénom"},
    {"Form1",             "Text_nom",               "Nom"},
    {"Form1",             "Combo_jourNaiss",        "Jour de naissance"},
    {"Form1",             "Combo_moisNaiss",        "Mois de naissance"},
    {"Form1",             "Combo_AnNaiss1",         "Année de naissance, les deux premiers chiffres"},
    {"Form1",             "Combo_AnNaiss2",         "Année de naissance, les deux derniers chiffres"},
    {"Form1",             "Text_zodiac",            "Texte du signe"},
    {"Form1",             "Text_jourdeSemaine",     "Texte du jour de naissance"},
    {"Form1",             "Text_Note",              "Notes"},
    {"Form1",             "Frame_FileFichier",      "Liste des fiches et des images"},
    {"Form1",             "Text_Cherche",           "Cherche une fiche"},
    {"Form1",             "Label_deplace",          "Fiche déplacée"},
    {"Form1",             "Frame_Internet",         "Carnet d'adresses web"},
    {"Form1",             "List_Internet",          "Adresses web"},
    {"Form1",             "Text_New_URL",           "Nouvelle adresse web"},
    {"Form1",             "HScroll_age",            "Âge"},
    {"Form1",             "Picture2",               "Aperçu de la page"},
    {"Form1",             "frame_messageSauve",     "Message"},
    {"Affiche_cycle",     "List_periode",           "Périodes année par année"},
    {"choix_age",         "choix_age",              "Choix d'un âge"},
    {"FrmSeigneurJour",   "List_SeigneurJour",      "Seigneurs des heures et des jours"},
    {"Palais_du_destin",  "Image1",                 "Temple du palais du destin"},
    {"frmCalend",         "cMois",                  "Mois"},
    {"frmCalend",         "cAn",                    "Année"},
    {"frmCalend",         "txtDate",                "Date choisie"},
    {"Fleche",            "Frame1",                 "Réglages des flèches"},
    {"Option_impression", "HScroll_annee",          "Âge au début des cinq ans"},
    {"Option_impression", "Image_Impression",       "Imprime la page"},
};
// The standard colours of the arrows, in their order.
constexpr std::array<std::string_view, 16> colour_names{
    "noir",       "bleu foncé",  "vert foncé",     "bleu-vert",    "rouge foncé", "pourpre",
    "vert olive", "gris clair",  "gris",           "bleu",         "vert vif",    "cyan",
    "rouge",      "magenta",     "jaune",          "blanc",
};
// clang-format on

std::string_view caption_of(Control const& control) {
    switch (control.kind()) {
        case Kind::form:
            return static_cast<screen::Form const&>(control).Caption.get();
        case Kind::label:
            return static_cast<Label const&>(control).Caption.get();
        case Kind::button:
            return static_cast<screen::Button const&>(control).Caption.get();
        case Kind::check_box:
            return static_cast<screen::CheckBox const&>(control).Caption.get();
        case Kind::option_button:
            return static_cast<screen::OptionButton const&>(control).Caption.get();
        case Kind::frame:
            return static_cast<screen::Frame const&>(control).Caption.get();
        case Kind::menu_entry:
            return static_cast<screen::MenuEntry const&>(control).Caption.get();
        default:
            return {};
    }
}

std::string_view trimmed(std::string_view text) {
    auto const first = text.find_first_not_of(" \r\n");
    return first == text.npos ? std::string_view{}
                              : text.substr(first, text.find_last_not_of(" \r\n.") + 1 - first);
}

// Runs of blanks keep words apart for the eye only.
std::string one_blank_each(std::string_view text) {
    std::string spoken;
    for (char const c : trimmed(text)) {
        bool const blank = c == ' ' || c == '\r' || c == '\n';
        if (!blank) spoken.push_back(c);
        if (blank && spoken.back() != ' ') spoken.push_back(' ');
    }
    return spoken;
}

// By its caption, else by what its tool tip says.
std::string own_words(Control const& control) {
    auto caption = one_blank_each(caption_of(control));
    auto const* const placed = dynamic_cast<screen::PlacedControl const*>(&control);
    if (!caption.empty() || placed == nullptr) return caption;
    return one_blank_each(placed->ToolTipText.get());
}

// A lord is said in full where the window shows two letters.
std::string lord_said(std::string_view shown) {
    auto const* const found =
        std::find(noms_seigneurs.begin() + short_names, noms_seigneurs.end(), shown);
    return std::string{found == noms_seigneurs.end() ? shown : *(found - short_names)};
}

std::string since(std::string_view date) {
    return date.empty() ? std::string{} : ", depuis le " + std::string{date};
}

// "Palais 3, Instable"; a cell without a palace is called by its place on the ring.
std::string palace_said(Form1 const& form, int cell) {
    auto const& palace = form.Label_Solaire(cell);
    if (!palace.Visible || palace.Caption.get().empty()) {
        return "Case " + std::to_string(cell);
    }
    std::string said = "Palais " + palace.Caption.get();
    auto const quality = trimmed(palace.ToolTipText.get());
    if (!quality.empty()) said.append(", ").append(quality);
    return said;
}

// What the eye sees by the black of a date among grey ones.
std::string_view mark_said(Label const& date) {
    return date.ForeColor.get() == screen::black ? ", marqué" : "";
}

std::string reign_said(Form1 const& form, int cell, std::string_view of_what,
                       Label const& lord) {
    std::string said = palace_said(form, cell);
    return said.append("; seigneur ")
        .append(of_what)
        .append(": ")
        .append(lord_said(lord.Caption.get()));
}

void name_the_cells(Form1& form) {
    for (int cell = 1; cell <= 12; ++cell) {
        auto const& period_date = form.Label_DashaDate(cell);
        auto const& month_date = form.Label_MoisDate(cell);
        form.Label_Dasha(cell).speak = [&form, cell, &period_date] {
            auto said = reign_said(form, cell, "de la période", form.Label_Dasha(cell));
            return said.append(since(period_date.Caption.get())).append(mark_said(period_date));
        };
        form.Label_annee(cell).speak = [&form, cell] {
            // A label that nobody has written to shows nothing but its place.
            if (form.Label_annee(cell).Caption.get().empty()) return palace_said(form, cell);
            return reign_said(form, cell, "de l'année", form.Label_annee(cell));
        };
        form.Label_mois(cell).speak = [&form, cell, &month_date] {
            auto said = reign_said(form, cell, "du mois", form.Label_mois(cell));
            return said.append(since(month_date.Caption.get())).append(mark_said(month_date));
        };
        form.Label_Solaire(cell).speak = [&form, cell] { return palace_said(form, cell); };
        form.Label_DashaDate(cell).speak = [&form, cell, &period_date] {
            return palace_said(form, cell) + "; période" + since(period_date.Caption.get());
        };
        form.Label_MoisDate(cell).speak = [&form, cell, &month_date] {
            return palace_said(form, cell) + "; mois" + since(month_date.Caption.get());
        };
    }
    for (int const member : form.ImageTriDeva.indexes()) {
        form.ImageTriDeva(member).speak = nullptr;
        form.ImageTriDeva(member).SpokenName =
            member < 3 ? "Tri-Deva, signe du trident" : "Tri-Deva, signe des trois gouttes";
    }
}

void name_the_readings(Form1& form) {
    auto const after = [](std::string_view what, Label const& label) {
        return [what, &label] {
            std::string said{what};
            return said.append(": ").append(one_blank_each(label.Caption.get()));
        };
    };
    form.Label_zodiac.speak = after("Signe zodiaque", form.Label_zodiac);
    form.Label_nomNakshatra.speak = after("Nakshatra", form.Label_nomNakshatra);
    form.Label_Nak.speak = after("Seigneur du Nakshatra", form.Label_Nak);
    form.Label_jourdeSemaine.speak = after("Jour de naissance", form.Label_jourdeSemaine);
    form.Label_divinite.speak = after("Seigneur du jour de naissance", form.Label_divinite);
    form.Label_Lal_Kitab.speak = after("Grand cycle", form.Label_Lal_Kitab);
    form.Label_anneedefile.speak =
        after("Premier jour de l'année du cycle", form.Label_anneedefile);
    form.Label_anneedefile_Suite.speak =
        after("Dernier jour de l'année du cycle", form.Label_anneedefile_Suite);
    form.Label_Nbr_Fiche.speak = after("Total de vos fichiers", form.Label_Nbr_Fiche);
    form.Label_message.speak = after("Message", form.Label_message);
    form.Label_age.speak = [&form] {
        std::string said = "Âge: " + form.Label_age.Caption.get();
        // What the eye sees by the colour.
        return said + (form.HScroll_age.Tag.get() == "VERT" ? ", cycle vrai" : ", cycle faux");
    };
    form.Picture_PHOTO.speak = [&form] {
        auto const& picture = form.Picture_PHOTO.Picture.get();
        return std::string{"Portrait"} + (picture.name() == "Image_Ganesha" ? ", Ganesha" : "");
    };
    form.File_Fichier.speak = [&form] {
        bool const images = form.File_Fichier.ForeColor.get() == screen::black;
        return std::string{images ? "Images" : "Fiches"};
    };
    form.Command_Disk_Vert.speak = [&form] {
        bool const unsaved = form.Command_Disk_Vert.Picture.get() == picture::unsaved;
        return own_words(form.Command_Disk_Vert) + (unsaved ? ", à sauver" : ", rien à sauver");
    };
    // Where the calendar mark has not been pointed at, it bears no words of its own.
    form.Image_cal_Julien.speak = [&form] {
        auto const words = own_words(form.Image_cal_Julien);
        return "Calendrier julien" + (words.empty() ? words : ", " + words);
    };
}

void name_the_small_windows(Program& program) {
    auto& chooser = program.choix_age;
    for (int const index : chooser.Label2.indexes()) {
        chooser.Label2(index).speak = [&label = chooser.Label2(index)] {
            auto const& age = label.Caption.get();
            return age.empty() ? std::string{"Aucun âge"}
                               : std::to_string(text::number_of(age)) +
                                     (text::number_of(age) == 1 ? " an" : " ans");
        };
    }
    auto& arrows = program.fleche;
    for (int const index : arrows.Label_couleur.indexes()) {
        arrows.Label_couleur(index).speak = [&arrows, index] {
            auto const& field = arrows.Label_couleur(index);
            bool const chosen = arrows.Shape_selection.Left.get() == field.Left.get() &&
                                arrows.Shape_selection.Top.get() == field.Top.get();
            std::string said = "Couleur ";
            said.append(colour_names[static_cast<std::size_t>(index)]);
            return said + (chosen ? ", choisie" : "");
        };
    }
    arrows.Picture1.speak = [&program] {
        return own_words(program.fleche.Picture1) + ": " +
               std::to_string(program.arrow.epaisseur_fleche) + " points";
    };
    auto& calendar = program.frm_calend;
    for (int const index : calendar.btnJour.indexes()) {
        calendar.btnJour(index).speak = [&day = calendar.btnJour(index)] {
            auto const said = own_words(day);
            return said.empty() ? std::string{"Aucun jour"} : said;
        };
    }
    calendar.Label_horloge.speak = [&calendar] {
        return "Date du jour: " + own_words(calendar.Label_horloge);
    };
    calendar.Label_Heure.speak = [&calendar] {
        return "Heure: " + own_words(calendar.Label_Heure);
    };
    calendar.lblDate.speak = [&calendar] {
        return "Date affichée: " + own_words(calendar.lblDate);
    };
}

void wire_names_of_table(screen::Form& form) {
    auto const row_of = [&](Control const& control) {
        return std::ranges::find_if(names, [&](Name const& row) {
            return row.form == form.name() && row.control == control.name();
        });
    };
    auto const name = [&](Control& control) {
        if (auto const row = row_of(control); row != std::end(names)) {
            control.SpokenName = row->spoken;
        } else {
            control.speak = [&control] { return own_words(control); };
        }
    };
    name(form);
    for (auto* control : form.controls()) name(*control);
}

}  // namespace

void wire_spoken_names(Program& program) {
    for (auto* form : program.screen.forms()) wire_names_of_table(*form);
    name_the_cells(program.form1);
    name_the_readings(program.form1);
    name_the_small_windows(program);
}

void follow_spoken_names(screen::Screen& screen) {
    for (auto* form : screen.forms()) {
        if (!form->Visible) continue;
        if (form->speak) form->SpokenName = form->speak();
        for (auto* control : form->controls()) {
            if (control->speak && control->is_shown()) control->SpokenName = control->speak();
        }
    }
}

}  // namespace navarun
