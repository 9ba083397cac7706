// The design of the main window.
#include "shell/form1.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"
#include "periods/lord_circle.h"
#include "shell/window_design.h"

namespace navarun {

namespace {

using screen::Alignment;
using screen::Colour;
using screen::Design;
using screen::Font;
using screen::Picture;
using screen::Place;
using screen::SystemColour;
using window_design::arial;
using window_design::azure_list;
using window_design::narrow;
using window_design::title_band;

constexpr Font bold(Font font) { return {font.name, font.size, true, font.italic}; }
constexpr Font italic(Font font) { return {font.name, font.size, font.bold, true}; }

// Of the azure schemes, in which the window is designed.
constexpr Colour azure_window{0xBDE7F7};
constexpr Colour purple{0x800080};

std::vector<int> const cells = window_design::indexes(1, 12);

struct Corner {
    int left;
    int top;
};

// The upper left corner of a cell: the place of its Label_Dasha. Cells 1 to 12 stand round the
// ring, clockwise from the second box of the top row; the chart's centre is free.
// clang-format off
constexpr std::array<Corner, 12> corners{{
    {2700, 405},
    {4305, 405},
    {5940, 405},
    {5940, 2010},
    {5940, 3600},
    {5940, 5220},
    {4305, 5220},
    {2700, 5220},
    {1050, 5220},
    {1050, 3600},
    {1050, 2010},
    {1050, 405},
}};
// clang-format on

// A part of a cell, by where it stands from the corner.
struct CellPart {
    int dx;
    int dy;
    int width;
    int height;
};
constexpr CellPart part_Dasha{0, 0, 255, 330};
constexpr CellPart part_DashaDate{15, 275, 345, 240};
constexpr CellPart part_annee{-15, 645, 285, 330};
constexpr CellPart part_mois{0, 1035, 255, 330};
constexpr CellPart part_MoisDate{15, 1315, 345, 240};
constexpr CellPart part_Solaire{750, 1275, 260, 300};

Place place_in_cell(CellPart const& part, int cell) {
    auto const& corner = corners[static_cast<std::size_t>(cell - 1)];
    return {corner.left + part.dx, corner.top + part.dy, part.width, part.height};
}

// The design of a row of cells: the same for all twelve but for the place.
auto cell_row(CellPart const& part, Design design) {
    design.align = Alignment::centre;
    return [part, design](int cell) {
        Design own = design;
        own.place = place_in_cell(part, cell);
        return own;
    };
}

Design solaire_design(int cell) {
    static std::vector<std::string> const tags = [] {
        std::vector<std::string> texts;
        for (int i = 0; i <= 12; ++i) texts.push_back(std::to_string(i));
        return texts;
    }();
    Design design{.place = place_in_cell(part_Solaire, cell),
                  .font = arial(11.25),
                  .back = SystemColour::window,
                  .align = Alignment::centre,
                  .visible = false,
                  .tag = tags[static_cast<std::size_t>(cell)]};
    // The other eleven have none.
    if (cell == 12) design.tooltip = "Double cliquez pour la définition des palais";
    return design;
}

Design tri_deva_design(int member) {
    static constexpr std::array<int, 6> lefts{0, 1080, 1320, 0, 1800, 2040};
    return {.place = {lefts[static_cast<std::size_t>(member)], 240, 270, 270},
            .visible = false,
            .picture = Picture{"ImageTriDeva", member}};
}

Design charge_design(int folder) {
    return {.place = {folder == 1 ? 1440 : 960, 6240, 495, 495},
            .tooltip = "Fichier Data",
            .picture = Picture{"DOSSIER", folder == 1 ? 1 : 4}};
}

// A heading with white text on a band.
Design band(Place place, std::string_view text, Font font, Colour back = title_band) {
    return {.place = place,
            .text = text,
            .font = font,
            .fore = screen::white,
            .back = back,
            .opaque = true,
            .align = Alignment::centre};
}

Design boxed(Design design) {
    design.border = true;
    return design;
}

// A reading that only the program writes.
Design reading(Place place, Font font) {
    return {
        .place = place, .font = font, .back = azure_list, .border = true, .read_only = true};
}

Design date_field(int left, std::string_view tooltip) {
    return {.place = {left, 1320, 615, 420},
            .font = narrow(11.25),
            .tooltip = tooltip,
            .digits_only = true,
            .max_length = 2};
}

Design name_field(int left, int width) {
    return {.place = {left, 600, width, 375},
            .font = arial(11.25),
            .back = SystemColour::highlight_3d,
            .max_length = 25};
}

Design picture_button(Place place, std::string_view tooltip, Picture picture) {
    return {.place = place, .tooltip = tooltip, .picture = std::move(picture)};
}

// Two-digit texts from `first` to `last`.
std::vector<std::string> two_digit_texts(int first, int last) {
    std::vector<std::string> texts;
    for (int i = first; i <= last; ++i) {
        texts.push_back(text::padded(i, 2));
    }
    return texts;
}

// One caption over both name fields; the blanks keep the two words apart.
std::string const names_caption = "Prénom" + std::string(73, ' ') + "Nom";

}  // namespace

// clang-format off
Form1::Form1(screen::Screen& screen_)
    : Form{screen_, "Form1",
           {.place = {0, 0, 12015, 7680},
            .text = "N.A.V.A.R.U.N",
            .back = azure_window,
            .visible = false}},

      Image2{*this, "Image2",
             {.place = {0, 0, 4575, 1575},
              .picture = Picture{"Image_nuage_haut", 1},
              .stretched = true}},
      Image_Titre{*this, "Image_Titre",
                  {.place = {800, 120, 3000, 405}, .picture = Picture{"Image_Titre_Navarun", 1}}},
      Image1{*this, "Image1",
             {.place = {0, 6720, 1920, 975},
              .picture = Picture{"Image_nuage_Bas", 1},
              .stretched = true}},

      Picture_KUNDALI{*this, "Picture_KUNDALI",
                      {.place = {4680, 0, 7365, 7180},
                       .back = Colour{0xFFFFC0},
                       .picture = Picture{"Image_Kundali", 0}}},
      ImageTriDeva{*this, "ImageTriDeva", {1, 2, 4, 5}, tri_deva_design, &Picture_KUNDALI},
      Label_Dasha{*this, "Label_Dasha", cells,
                  cell_row(part_Dasha, {.font = narrow(12.75),
                                        .fore = Colour{0x808000},
                                        .back = Colour{0xD0A80A}}),
                  &Picture_KUNDALI},
      Label_DashaDate{*this, "Label_DashaDate", cells,
                      cell_row(part_DashaDate, {.font = narrow(9.75), .fore = screen::grey}),
                      &Picture_KUNDALI},
      Label_annee{*this, "Label_annee", cells,
                  cell_row(part_annee, {.font = bold(narrow(12.75)),
                                        .fore = Colour{0xC00000},
                                        .back = Colour{0xE8BC0C},
                                        .visible = false}),
                  &Picture_KUNDALI},
      Label_mois{*this, "Label_mois", cells,
                 cell_row(part_mois, {.font = narrow(12.75),
                                      .fore = screen::grey,
                                      .back = Colour{0xF9E594},
                                      .visible = false}),
                 &Picture_KUNDALI},
      Label_MoisDate{*this, "Label_MoisDate", cells,
                     cell_row(part_MoisDate, {.font = narrow(9.75), .fore = screen::grey}),
                     &Picture_KUNDALI},
      Label_Solaire{*this, "Label_Solaire", cells, solaire_design, &Picture_KUNDALI},
      Text_definition_palais{*this, "Text_definition_palais",
                             {.place = {2100, 2020, 3220, 3160},
                              .font = arial(12),
                              .back = azure_list,
                              .border = true,
                              .visible = false},
                             &Picture_KUNDALI},

      Label4{*this, "Label4",
             {.place = {0, 315, 4455, 285},
              .text = names_caption,
              .font = italic(narrow(11.25)),
              .fore = Colour{0x404040}}},
      Text_prenom{*this, "Text_prenom", name_field(0, 1935)},
      Text_nom{*this, "Text_nom", name_field(2040, 2295)},
      Image_cal_Julien{*this, "Image_cal_Julien",
                       {.place = {2080, 1040, 255, 255},
                        .visible = false,
                        .picture = Picture{"Image_cal_Julien"}}},
      Label_cal_julien{*this, "Label_cal_julien",
                       {.place = {2280, 1005, 2295, 300},
                        .text = "Naissance 1600 - 2199",
                        .font = italic(narrow(12)),
                        .align = Alignment::centre}},
      Combo_jourNaiss{*this, "Combo_jourNaiss",
                      date_field(2040, "Entrez le jour de naissance"), two_digit_texts(1, 31)},
      Combo_moisNaiss{*this, "Combo_moisNaiss",
                      date_field(2640, "Entrez le mois de naissance"), two_digit_texts(1, 12)},
      Combo_AnNaiss1{*this, "Combo_AnNaiss1", date_field(3360, "Année de naissance"),
                     two_digit_texts(16, 21)},
      Combo_AnNaiss2{*this, "Combo_AnNaiss2", date_field(3960, "Année de naissance"),
                     two_digit_texts(0, 99)},

      Picture_PHOTO{*this, "Picture_PHOTO",
                    {.place = {0, 1000, 1950, 2700}, .picture = Picture{"Image_Ganesha"}}},
      Label_zodiac{*this, "Label_zodiac",
                   boxed(band({0, 3720, 1935, 315}, "Signe zodiaque", arial(11.25)))},
      Text_zodiac{*this, "Text_zodiac", reading({0, 4040, 1935, 1455}, arial(9.75))},
      Label_nomNakshatra{*this, "Label_nomNakshatra",
                         band({0, 5520, 1935, 300}, "Nakshatra", arial(11.25))},
      Label_Nak{*this, "Label_Nak",
                band({-120, 5880, 2055, 300}, "Nakshatra", arial(11.25), purple)},
      Bouton_Internet{*this, "Bouton_Internet",
                      picture_button({0, 6240, 495, 495}, "Internet",
                                     Picture{"Bouton_Internet"})},
      Bouton_Image{*this, "Bouton_Image",
                   picture_button({480, 6240, 495, 495}, "Fichier image",
                                  Picture{"Bouton_Image"})},
      Charge{*this, "Charge", {1, 2}, charge_design},
      Command_reset{*this, "Command_reset",
                    picture_button({1440, 6720, 495, 495}, "Initialise",
                                   Picture{"reset_efface", 0})},
      Command_Disk_Vert{*this, "Command_Disk_Vert",
                        picture_button({1440, 7200, 495, 495}, "Sauve",
                                       Picture{"Diskette", 0})},

      Label_jourdeSemaine{*this, "Label_jourdeSemaine",
                          band({2040, 1800, 1215, 285}, "Jour de Naissance", arial(11.25))},
      Label_divinite{*this, "Label_divinite",
                     band({3240, 1800, 1335, 285}, "", arial(11.25), purple)},
      Label_dinanka_Purnanka{*this, "Label_dinanka_Purnanka",
                             band({2040, 3960, 2655, 315}, "Dinanka Purnanka", arial(11.25))},
      Text_jourdeSemaine{*this, "Text_jourdeSemaine",
                         reading({2040, 2160, 2655, 1815}, arial(9.75))},
      Text_Note{*this, "Text_Note",
                {.place = {2040, 4320, 2655, 3375}, .font = arial(11.25), .border = true}},
      Frame_FileFichier{*this, "Frame_FileFichier",
                        {.place = {2040, 3960, 2655, 3735},
                         .back = Colour{0xC0C0FF},
                         .visible = false}},
      File_Fichier{*this, "File_Fichier",
                   {.place = {0, 0, 2655, 3345},
                    .font = arial(11.25),
                    .fore = Colour{0x000040}},
                   &Frame_FileFichier},
      Text_Cherche{*this, "Text_Cherche",
                   {.place = {0, 3360, 2175, 345},
                    .font = narrow(14.25),
                    .back = Colour{0xC0FFC0},
                    .tooltip = "Cherche une fiche."},
                   &Frame_FileFichier},
      Label_Nbr_Fiche{*this, "Label_Nbr_Fiche",
                      {.place = {2160, 3360, 495, 345},
                       .font = italic(narrow(12)),
                       .fore = Colour{0xFFFF00},
                       .back = screen::black,
                       .opaque = true,
                       .border = true,
                       .align = Alignment::centre,
                       .tooltip = "total de vos fichiers"},
                      &Frame_FileFichier},
      Label_deplace{*this, "Label_deplace",
                    {.place = {0, 0, 375, 255},
                     .back = Colour{0xFF0000},
                     .opaque = true,
                     .visible = false},
                    &Frame_FileFichier},
      Frame_Internet{*this, "Frame_Internet",
                     {.place = {2040, 3960, 2655, 3735},
                      .back = Colour{0xC0FFC0},
                      .visible = false}},
      List_Internet{*this, "List_Internet",
                    {.place = {0, 0, 2680, 3375},
                     .font = arial(11.25),
                     .fore = Colour{0x000080}},
                    &Frame_Internet},
      Text_New_URL{*this, "Text_New_URL",
                   {.place = {0, 3360, 2535, 375},
                    .text = "www.",
                    .font = narrow(14.25),
                    .tooltip = "Enregistre une adresse web."},
                   &Frame_Internet},

      Label_Lal_Kitab{*this, "Label_Lal_Kitab",
                      boxed(band({4680, 7230, 1920, 420}, "", narrow(12)))},
      Shape_defile_an{*this, "Shape_defile_an", {.place = {6640, 7200, 1060, 495}, .opaque = true}},
      Label_anneedefile{*this, "Label_anneedefile",
                        {.place = {6690, 7170, 960, 255},
                         .font = narrow(12),
                         .align = Alignment::centre}},
      Label_anneedefile_Suite{*this, "Label_anneedefile_Suite",
                              {.place = {6690, 7410, 960, 255},
                               .font = narrow(12),
                               .align = Alignment::centre}},
      Label_age{*this, "Label_age",
                {.place = {7750, 7230, 660, 390},
                 .text = "1",
                 .font = narrow(12.75),
                 .back = Colour{0xC0FFC0},
                 .opaque = true,
                 .border = true,
                 .align = Alignment::centre,
                 .tooltip = "Choisissez un âge."}},
      HScroll_age{*this, "HScroll_age",
                  {.place = {8440, 7200, 1760, 495}, .minimum = 1, .maximum = greatest_age}},
      Command2{*this, "Command2",
               picture_button({10200, 7200, 495, 495}, "Génère les cycles",
                              Picture{"CycleBouton", 0})},
      Command_DateNow{*this, "Command_DateNow",
                      picture_button({10680, 7200, 495, 495}, "Âge actuel",
                                     Picture{"Image_DateNow", 1})},
      Command_categorie{*this, "Command_categorie",
                        picture_button({11160, 7200, 300, 460},
                                       "Affiche la catégorie des palais.",
                                       Picture{"Command_categorie"})},
      Btn_cycle_partiel{*this, "Btn_cycle_partiel",
                        picture_button({11460, 7200, 300, 460},
                                       "Affiche les 3 cycles uniquement.",
                                       Picture{"Btn_cycle_partiel"})},
      Bouton_seigneurjour{*this, "Bouton_seigneurjour",
                          picture_button({11760, 7200, 300, 460}, "Seigneur du jour",
                                         Picture{"Image_heure", 1})},

      Picture2{*this, "Picture2", {.place = {6960, 0, 5100, 7180}, .visible = false}},
      frame_messageSauve{*this, "frame_messageSauve",
                         {.place = {6360, 2880, 4095, 1455},
                          .back = Colour{0xFFFFC0},
                          .visible = false}},
      Shape_message{*this, "Shape_message",
                    {.place = {120, 120, 3855, 1215}, .back = Colour{0xFFFF80}, .opaque = true},
                    &frame_messageSauve},
      Label_message{*this, "Label_message",
                    {.place = {240, 240, 3510, 915},
                     .text = "Sauvegarde OK !",
                     .font = narrow(12),
                     .back = Colour{0xFFFF80},
                     .opaque = true,
                     .align = Alignment::centre},
                    &frame_messageSauve},

      MnuBouton_Menu{*this, "MnuBouton_Menu", "Menu"},
      MnuDevant{*this, "MnuDevant", "N.A.V.A.R.U.N  devant", &MnuBouton_Menu},
      MnuNavarun{*this, "MnuNavarun", "Lancer N.A.V.A.R.U.N", &MnuBouton_Menu},
      MnuPersonalite{*this, "MnuPersonalite", "Description de la personnalité",
                     &MnuBouton_Menu},
      Mnucelebrites{*this, "Mnucelebrites", "Date de Naiss des Célébrités", &MnuBouton_Menu},
      separation1{*this, "separation1", MnuBouton_Menu},
      MnuAide{*this, "MnuAide", "Aide", &MnuBouton_Menu},
      MnuPropos{*this, "MnuPropos", "À propos", &MnuBouton_Menu},
      MnuQuitter{*this, "MnuQuitter", "Quitter", &MnuBouton_Menu},
      MnuBouton_impression{*this, "MnuBouton_impression", "Impression"},
      MnuImprime{*this, "MnuImprime", "Imprime", &MnuBouton_impression},
      MnuApercu_Impression{*this, "MnuApercu_Impression", "Aperçu / impression / Option",
                           &MnuBouton_impression},
      MnuBouton_Outil{*this, "MnuBouton_Outil", "Outils"},
      Mnu_Julien{*this, "Mnu_Julien", "Cal.Julien < 2000", &MnuBouton_Outil},
      MnuFleche{*this, "MnuFleche", "Dessiner  les Flêches", &MnuBouton_Outil},
      MnuCalendrier{*this, "MnuCalendrier", "Calendrier", &MnuBouton_Outil},
      separation{*this, "separation", MnuBouton_Outil},
      MnuCalculatrice{*this, "MnuCalculatrice", "Calculatrice", &MnuBouton_Outil},
      MnuBlocNotes{*this, "MnuBlocNotes", "Bloc-Notes", &MnuBouton_Outil},
      Mnu_afficher{*this, "Mnu_afficher", "Afficher"},
      Mnu_palaisdestin{*this, "Mnu_palaisdestin", "Palais du destin", &Mnu_afficher},
      Mnuperiode{*this, "Mnuperiode", "Affiche les périodes", &Mnu_afficher},
      MnuBouton_Apparence{*this, "MnuBouton_Apparence", "Apparence"},
      MnuCouleur_Navarun{*this, "MnuCouleur_Navarun", "&Couleur N.A.V.A.R.U.N",
                         &MnuBouton_Apparence},
      MnuAzur_cycle{*this, "MnuAzur_cycle", "Azur (cycle)", &MnuCouleur_Navarun},
      MnuAzur_Aum{*this, "MnuAzur_Aum", "Azur (Aum)", &MnuCouleur_Navarun},
      MnuMauve_cycle{*this, "MnuMauve_cycle", "Mauve (cycle)", &MnuCouleur_Navarun},
      MnuMauve_Aum{*this, "MnuMauve_Aum", "Mauve (Aum)", &MnuCouleur_Navarun},
      separation_apparence{*this, "séparation", MnuBouton_Apparence},
      Mnu_abrege{*this, "Mnu_abrege", "Divinités en abrégé", &MnuBouton_Apparence} {
    tab_order = {
        &Text_prenom,     &Text_nom,       &Combo_jourNaiss, &Combo_moisNaiss,
        &Combo_AnNaiss1,  &Combo_AnNaiss2, &HScroll_age,     &Text_zodiac,
        &Label_zodiac,    &Label_nomNakshatra,               &Label_Nak,
        &Label_jourdeSemaine,              &Label_divinite,  &Label_dinanka_Purnanka,
        &Label_Lal_Kitab, &Label_age,      &Command2,        &Picture_KUNDALI,
    };
    // clang-format on
}

}  // namespace navarun
