// What the pointer and the keyboard's moves do to a widget, told to the control that it shows.
#pragma once

#include <QWidget>

#include "shell/screen/control.h"

namespace navarun::desktop {

class Session;

/// Tells clicks, double clicks and pointer moves on `widget`. The second press of a double
/// click is a double click alone.
void tell_mouse(Session& session, screen::PlacedControl& control, QWidget& widget);

/// Tells the moves of the pointer over `widget` alone, and takes no event from it.
void tell_pointer(Session& session, screen::PlacedControl& control, QWidget& widget);

/// Lets files be dropped on `widget` from outside.
void tell_file_drops(Session& session, screen::PlacedControl& control, QWidget& widget);

/// Tells when the user moves the keyboard to `widget`. Menus, lists that pop up, boxes and a
/// switch of windows do not count.
void tell_focus(Session& session, screen::PlacedControl& control, QWidget& widget);

}  // namespace navarun::desktop
