// The design of the arrow window.
#include "shell/fleche.h"

#include <array>

#include "shell/window_design.h"

namespace navarun {

namespace {

using screen::Colour;
using screen::Design;

constexpr screen::Font font{.name = "Arial", .size = 9.75};

// Four rows of four fields.
constexpr int field_size = 420;
constexpr int field_step = 480;
constexpr int fields_left = 150;
constexpr int fields_top = 1290;

Design option_design(int index) {
    static constexpr std::array<std::string_view, 4> captions{"", "Flêche 1", "Flêche 2",
                                                              "Ligne"};
    return {.place = {150, 150 + (index - 1) * 345, 1800, 315},
            .text = captions[static_cast<std::size_t>(index)],
            .font = font};
}

Design colour_design(int index) {
    return {.place = {fields_left + index % 4 * field_step, fields_top + index / 4 * field_step,
                      field_size, field_size},
            .back = screen::standard_colour(index),
            .opaque = true,
            .border = true};
}

}  // namespace

Fleche::Fleche(screen::Screen& screen_)
    : Form{screen_,
           "Fleche",
           {.place = {120, 1650, 2280, 5310},
            .text = "Flêche",
            .back = Colour{0xBDE7F7},
            .visible = false}},
      Frame1{*this, "Frame1", {.place = {60, 60, 2160, 5190}, .border = true}},
      Option_Fleche{*this, "Option_Fleche", {1, 2, 3}, option_design, &Frame1},
      Label_couleur{*this, "Label_couleur", window_design::indexes(0, 15), colour_design,
                    &Frame1},
      Shape_selection{
          *this,
          "Shape_selection",
          {.place = {fields_left + field_step, fields_top + field_step, field_size, field_size},
           .border = true},
          &Frame1},
      // Five samples, 215 apart.
      Picture1{
          *this,
          "Picture1",
          {.place = {150, 3270, 1860, 1155}, .border = true, .tooltip = "Epaisseur du trait"},
          &Frame1},
      Command1{*this,
               "Command1",
               {.place = {150, 4560, 495, 495},
                .tooltip = "Efface les flêches",
                .picture = screen::Picture{"Fleche.Command1"}},
               &Frame1} {}

}  // namespace navarun
