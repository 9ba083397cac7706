// The design of the print options. The window opens left of the preview, so that the page stays
// in sight.
#include "shell/option_impression.h"

#include "periods/lord_circle.h"
#include "shell/window_design.h"

namespace navarun {

namespace {

using screen::Alignment;
using screen::Colour;
using screen::Design;
using namespace window_design;

constexpr int window_width = 3375;
// Left edge of the last check box of a row.
constexpr int last_column = 2040;

constexpr Colour span_blue{0x0000C0};
constexpr Colour age_green{0xC0FFC0};

Design age_design(int index) {
    switch (index) {
        case 0:
            return {.place = {240, 540, 855, 255},
                    .font = arial(12),
                    .fore = span_blue,
                    .align = Alignment::centre};
        case 1:
            return {.place = {2280, 540, 975, 255},
                    .font = arial(12),
                    .fore = span_blue,
                    .align = Alignment::centre};
        default:
            return {.place = {1540, 540, 380, 255},
                    .font = {.name = "Arial", .size = 12, .bold = true},
                    .back = age_green,
                    .opaque = true,
                    .align = Alignment::centre,
                    .tooltip = "Rouge indique en dehors de l'âge."};
    }
}

Design date_design(int index) {
    return {.place = {index == 0 ? 120 : 2280, 840, 975, 255}, .font = narrow(12)};
}

Design box_design(int left, int top, std::string_view text, std::string_view tooltip) {
    // The last of a row reaches the edge of the window.
    int const width = left == last_column ? window_width - left : 1080;
    return {.place = {left, top, width, 330},
            .text = text,
            .font = narrow(11.25),
            .back = azure_small_window,
            .tooltip = tooltip};
}

Design title_design() {
    Design design = title({0, 0, window_width, 495}, {.name = "MS Sans Serif", .size = 13.5});
    design.text = "Option d'impression";
    design.border = true;
    return design;
}

}  // namespace

Option_impression::Option_impression(screen::Screen& screen_)
    : Form{screen_, "Option_impression",
           window({3480, 2400, window_width, 3240}, "Option Impression")},
      Label_option_impression{*this, "Label_option_impression", title_design()},
      Label_age{*this, "Label_age", {0, 1, 2}, age_design},
      Label_afficheAnnee{*this, "Label_afficheAnnee", {0, 1}, date_design},
      Btn_remise1{*this,
                  "Btn_remise1",
                  {.place = {240, 1200, 200, 280},
                   .tooltip = "Revient à l'âge.",
                   .picture = screen::Picture{"Option_impression.Btn_remise1"}}},
      HScroll_annee{*this,
                    "HScroll_annee",
                    {.place = {480, 1200, 2520, 280}, .minimum = 1, .maximum = greatest_age}},
      Check_Mahadasha{*this, "Check_Mahadasha",
                      box_design(0, 1680, "G.Cycle", "Imprimez le Grand Cycle.")},
      Check_PhotoImprime{*this, "Check_PhotoImprime",
                         box_design(1080, 1680, "Photo", "Imprimez la photo.")},
      Check_periode{*this, "Check_periode",
                    box_design(last_column, 1680, "Période", "Imprimez les périodes.")},
      // The missing letter is the window's own.
      Check_SeigneurMois{*this, "Check_SeigneurMois",
                         box_design(0, 2040, "S.Mois", "Imprimez le Ségneur du Mois.")},
      Check_noteImprime{*this, "Check_noteImprime",
                        box_design(1080, 2040, "Note", "Imprimez vos notes.")},
      Check_palaisDestin{
          *this, "Check_palaisDestin",
          box_design(last_column, 2040, "P. du destin", "Imprimez le palais du destin.")},
      Image_Impression{*this,
                       "Image_Impression",
                       {.place = {1447, 2520, 480, 480},
                        .picture = screen::Picture{"Option_impression.Image_Impression"},
                        .stretched = true}} {
    for (auto* box : {&Check_Mahadasha, &Check_PhotoImprime, &Check_periode,
                      &Check_SeigneurMois, &Check_noteImprime, &Check_palaisDestin}) {
        box->Value.preset(1);
    }
    // The bar last: who comes to it takes the list of periods off the page.
    tab_order = {&Check_Mahadasha,    &Check_PhotoImprime, &Check_periode,
                 &Check_SeigneurMois, &Check_noteImprime,  &Check_palaisDestin,
                 &Image_Impression,   &Btn_remise1,        &HScroll_annee};
}

}  // namespace navarun
