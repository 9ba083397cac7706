// The designs of the small windows. Each opens over the left half of the main window, so that
// the chart stays in sight.
#include "shell/small_windows.h"

#include <array>

#include "shell/window_design.h"

namespace navarun {

namespace {

using screen::Alignment;
using screen::Colour;
using screen::Design;
using screen::Place;
using namespace window_design;

// Ten rows of ten ages.
constexpr int age_step_x = 420;
constexpr int age_step_y = 330;

Design age_design(int index) {
    int const place = index - 1;
    return {.place = {120 + place % 10 * age_step_x, 570 + place / 10 * age_step_y,
                      age_step_x - 30, age_step_y - 30},
            .font = arial(9.75),
            .back = azure_list,
            .opaque = true,
            .align = Alignment::centre};
}

// Five facts below each other, the lord of destiny in the middle of the temple's gate.
Design destiny_design(int index) {
    static constexpr std::array<Place, 5> places{{
        {1800, 990, 600, 330},
        {1050, 1320, 2100, 330},
        {1050, 1650, 2100, 330},
        {1050, 1980, 2100, 330},
        {1050, 2310, 2100, 600},
    }};
    return {.place = places[static_cast<std::size_t>(index)],
            .font = {.name = "Arial", .size = 11.25, .bold = index == 2},
            .fore = index == 2 ? Colour{0xC00000} : screen::black,
            .align = Alignment::centre};
}

// Six rows of seven days.
constexpr int day_step_x = 570;
constexpr int day_step_y = 465;

Design day_design(int index) {
    return {.place = {120 + index % 7 * day_step_x, 1560 + index / 7 * day_step_y,
                      day_step_x - 30, day_step_y - 30},
            .font = arial(11.25),
            .back = azure_list};
}

Design heading_design(int index) {
    static constexpr std::array<std::string_view, 7> names{"Lun", "Mar", "Mer", "Jeu",
                                                           "Ven", "Sam", "Dim"};
    Design design = title({120 + index * day_step_x, 1200, day_step_x - 30, 315}, arial(9.75));
    design.text = names[static_cast<std::size_t>(index)];
    return design;
}

}  // namespace

Affiche_cycle::Affiche_cycle(screen::Screen& screen_)
    : Form{screen_, "Affiche_cycle", window({150, 1500, 4200, 5700}, "Périodes")},
      List_periode{*this,
                   "List_periode",
                   {.place = {90, 90, 4020, 5520}, .font = narrow(12), .back = azure_list}} {}

Choix_age::Choix_age(screen::Screen& screen_)
    : Form{screen_, "choix_age", window({120, 2700, 4410, 4560}, "")},
      Label_choix_age{*this, "Label_choix_age", title({120, 90, 4170, 375}, arial(12))},
      Label2{*this, "Label2", indexes(1, 100), age_design},
      Image1{*this,
             "Image1",
             {.place = {120, 3960, 480, 480},
              .tooltip = "Page précédente",
              .picture = screen::Picture{"choix_age.Image1"}}},
      Image2{*this,
             "Image2",
             {.place = {3810, 3960, 480, 480},
              .tooltip = "Page suivante",
              .picture = screen::Picture{"choix_age.Image2"}}} {
    Label_choix_age.Caption = "Choisissez un âge";
    Modal = true;
}

FrmSeigneurJour::FrmSeigneurJour(screen::Screen& screen_)
    : Form{screen_, "FrmSeigneurJour", window({150, 1500, 4200, 5700}, "Seigneur du Jour")},
      List_SeigneurJour{
          *this,
          "List_SeigneurJour",
          {.place = {90, 90, 4020, 4920}, .font = narrow(12), .back = azure_list}},
      Btn_Imprime{*this,
                  "Btn_Imprime",
                  {.place = {90, 5100, 495, 495},
                   .tooltip = "Imprime les seigneurs du jour",
                   .picture = screen::Picture{"FrmSeigneurJour.Btn_Imprime"}}},
      Btn_Fermez{*this,
                 "Btn_Fermez",
                 {.place = {3615, 5100, 495, 495},
                  .tooltip = "Ferme la fenêtre",
                  .picture = screen::Picture{"FrmSeigneurJour.Btn_Fermez"}}} {}

Palais_du_destin::Palais_du_destin(screen::Screen& screen_)
    : Form{screen_, "Palais_du_destin", window({150, 3900, 4200, 3300}, "  PALAIS DU DESTIN")},
      Image1{*this,
             "Image1",
             {.place = {0, 0, 4200, 3300},
              .picture = screen::Picture{"Palais_du_destin.Image1"},
              .stretched = true}},
      Label_Palais_du_destin{*this, "Label_Palais_du_destin", indexes(0, 4), destiny_design} {}

FrmCalend::FrmCalend(screen::Screen& screen_)
    : Form{screen_, "frmCalend", window({120, 1650, 4215, 5610}, "Calendrier")},
      Label_horloge{
          *this, "Label_horloge", {.place = {120, 90, 1950, 300}, .font = arial(11.25)}},
      Label_Heure{
          *this,
          "Label_Heure",
          {.place = {2130, 90, 1950, 300}, .font = arial(11.25), .align = Alignment::centre}},
      cMois{*this, "cMois", {.place = {120, 450, 1950, 375}, .font = arial(11.25)}},
      cAn{*this, "cAn", {.place = {2130, 450, 1950, 375}, .font = arial(11.25)}},
      lblJour{*this, "lblJour", indexes(0, 6), heading_design},
      btnJour{*this, "btnJour", indexes(0, 41), day_design},
      lblDate{*this, "lblDate", title({120, 870, 3960, 300}, arial(11.25))},
      chkWeek{*this,
              "chkWeek",
              {.place = {120, 4440, 1500, 345}, .text = "WeekEnd", .font = arial(9.75)}},
      chkFerie{*this,
               "chkFerie",
               {.place = {120, 4830, 1500, 345}, .text = "Fériés", .font = arial(9.75)}},
      BtnToday{*this,
               "BtnToday",
               {.place = {2130, 4500, 1950, 495}, .text = "Aujourd'hui", .font = arial(9.75)}},
      txtDate{*this, "txtDate", {.place = {0, 0, 15, 15}, .visible = false}},
      Timer1{*this, "Timer1", 1000} {}

}  // namespace navarun
