// The keyboard in place of the pointer, on labels and pictures. They take no focus of the
// model: having the keyboard fires nothing there, and the control that has the focus keeps it.
#pragma once

#include <QWidget>

#include "shell/screen/control.h"

namespace navarun::desktop {

class Session;

/// Enter and Space are a click on `widget`, Shift+Enter a double click, coming here by Tab a
/// move of the pointer. Ctrl+C copies the text, Ctrl+V drops the file that was copied
/// elsewhere. On a picture that answers to the button of the mouse the arrows move a point, and
/// Enter presses the button there, and lets it go again where the picture answers to that too.
/// Escape gives the keyboard back to the control that has the focus.
void tell_keys(Session& session, screen::PlacedControl& control, QWidget& widget);

}  // namespace navarun::desktop
