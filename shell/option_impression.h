// The window of the print options, beside the preview.
#pragma once

#include "shell/screen/choice.h"
#include "shell/screen/control.h"
#include "shell/screen/control_array.h"
#include "shell/screen/form.h"

namespace navarun {

class Option_impression : public screen::Form {
  public:
    explicit Option_impression(screen::Screen& screen_);

    screen::Label Label_option_impression;
    screen::ControlArray<screen::Label> Label_age;           // 0 to 2
    screen::ControlArray<screen::Label> Label_afficheAnnee;  // 0 and 1
    screen::Button Btn_remise1;
    screen::ScrollBar HScroll_annee;
    screen::CheckBox Check_Mahadasha;
    screen::CheckBox Check_PhotoImprime;
    screen::CheckBox Check_periode;
    screen::CheckBox Check_SeigneurMois;
    screen::CheckBox Check_noteImprime;
    screen::CheckBox Check_palaisDestin;
    screen::Image Image_Impression;
};

}  // namespace navarun
