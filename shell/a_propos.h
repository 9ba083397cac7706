// The about box.
#pragma once

#include "shell/screen/control.h"
#include "shell/screen/form.h"

namespace navarun {

class A_propos : public screen::Form {
  public:
    explicit A_propos(screen::Screen& screen_);

    screen::Image Image1;
    screen::Shape Shape1;
    screen::Image Image_Ganesha;
    screen::Label lblTitle;
    screen::Label lblVersion;
    screen::Label lblDescription;
    screen::Label LblInternet;
    screen::Label Lbl_merci;
    screen::Button cmdOK;
};

}  // namespace navarun
