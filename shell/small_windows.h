// The windows beside the main one that belong to the readings: their tables of controls.
#pragma once

#include "shell/screen/choice.h"
#include "shell/screen/control.h"
#include "shell/screen/control_array.h"
#include "shell/screen/entry.h"
#include "shell/screen/form.h"
#include "shell/screen/list.h"

namespace navarun {

/// The years of the person's periods, line by line.
class Affiche_cycle : public screen::Form {
  public:
    explicit Affiche_cycle(screen::Screen& screen_);

    screen::List List_periode;
};

/// The table of ages from which one is chosen.
class Choix_age : public screen::Form {
  public:
    explicit Choix_age(screen::Screen& screen_);

    screen::Label Label_choix_age;
    screen::ControlArray<screen::Label> Label2;  // 1 to 100
    screen::Image Image1;                        // to the page before
    screen::Image Image2;                        // to the next page
};

/// The lords of days and hours.
class FrmSeigneurJour : public screen::Form {
  public:
    explicit FrmSeigneurJour(screen::Screen& screen_);

    screen::List List_SeigneurJour;
    screen::Button Btn_Imprime;
    screen::Button Btn_Fermez;
};

/// Five facts of the column in which the age stands.
class Palais_du_destin : public screen::Form {
  public:
    explicit Palais_du_destin(screen::Screen& screen_);

    screen::Image Image1;
    screen::ControlArray<screen::Label> Label_Palais_du_destin;  // 0 to 4
};

/// A month calendar with the French holidays.
class FrmCalend : public screen::Form {
  public:
    explicit FrmCalend(screen::Screen& screen_);

    screen::Label Label_horloge;
    screen::Label Label_Heure;
    screen::DropDown cMois;
    screen::DropDown cAn;
    screen::ControlArray<screen::Label> lblJour;   // 0 to 6
    screen::ControlArray<screen::Button> btnJour;  // 0 to 41
    screen::Label lblDate;
    screen::CheckBox chkWeek;
    screen::CheckBox chkFerie;
    screen::Button BtnToday;
    screen::TextField txtDate;
    screen::Timer Timer1;
};

}  // namespace navarun
