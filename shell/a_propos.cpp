// The design of the about box.
#include "shell/a_propos.h"

#include "shell/image_store.h"

namespace navarun {

namespace {

using screen::Alignment;
using screen::Colour;
using screen::Design;
using screen::Font;
using screen::Place;

constexpr Colour pale_ground{0xEEF6F9};
constexpr Colour band{0xBDEBF8};
constexpr Colour deep_blue{0x04617B};

constexpr Font bold(double size) {
    return {.name = "MS Sans Serif", .size = size, .bold = true};
}

Design centred(Place place, Font font) {
    return {.place = place, .font = font, .fore = deep_blue, .align = Alignment::centre};
}

Design boxed(Place place, Font font) {
    Design design = centred(place, font);
    design.border = true;
    return design;
}

Design address(Place place, Font font) {
    Design design = centred(place, font);
    design.tooltip = "Aller sur le site de l'auteur";
    return design;
}

}  // namespace

A_propos::A_propos(screen::Screen& screen_)
    : Form{screen_,
           "a_propos",
           {.place = {3400, 1900, 5190, 3720}, .back = pale_ground, .visible = false}},
      Image1{*this,
             "Image1",
             {.place = {0, 0, 5205, 2010},
              .picture = screen::Picture{"Image_nuage_haut", 1},
              .stretched = true}},
      Shape1{*this, "Shape1", {.place = {0, 2040, 5205, 450}, .back = band, .opaque = true}},
      Image_Ganesha{
          *this,
          "Image_Ganesha",
          {.place = {105, 390, 1170, 1515}, .picture = picture::ganesha, .stretched = true}},
      lblTitle{*this, "lblTitle", centred({1200, 0, 3045, 480}, bold(13.5))},
      lblVersion{*this, "lblVersion", centred({2250, 480, 945, 300}, bold(12))},
      lblDescription{*this, "lblDescription", boxed({1320, 1200, 2805, 690}, bold(12))},
      LblInternet{*this, "LblInternet", address({0, 2100, 5100, 375}, bold(12))},
      Lbl_merci{*this,
                "Lbl_merci",
                {.place = {240, 2550, 4935, 615},
                 .font = {.name = "MS Sans Serif", .size = 12},
                 .align = Alignment::centre}},
      cmdOK{*this, "cmdOK", {.place = {2040, 3360, 1260, 345}, .text = "OK"}} {
    Modal = true;
    default_button = &cmdOK;
    cancel_button = &cmdOK;
}

}  // namespace navarun
