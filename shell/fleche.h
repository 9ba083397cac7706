// Fleche, the tool window of the arrows: kind, colour and width.
#pragma once

#include "shell/screen/choice.h"
#include "shell/screen/control.h"
#include "shell/screen/control_array.h"
#include "shell/screen/form.h"
#include "shell/screen/picture_box.h"

namespace navarun {

class Fleche : public screen::Form {
  public:
    explicit Fleche(screen::Screen& screen_);

    screen::Frame Frame1;
    screen::ControlArray<screen::OptionButton> Option_Fleche;  // 1 to 3
    screen::ControlArray<screen::Label> Label_couleur;         // 0 to 15
    screen::Shape Shape_selection;
    screen::PictureBox Picture1;
    screen::Button Command1;
};

}  // namespace navarun
