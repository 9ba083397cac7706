// What screen readers are told about the widgets of our own: their roles, and what can be done
// to them. Names come from the model.
#pragma once

#include <QWidget>

namespace navarun::desktop {

/// Makes the widgets of our own known to screen readers. Once, on the one application.
void install_roles();

/// How a widget that draws itself presents itself.
enum class SpokenRole {
    decoration,  // for the eye alone
    text,
    picture,
    icon,  // a picture on which nothing lies
    group,
};

/// What a widget that draws itself answers to; pressing it from a screen reader is just that.
enum class Reaction {
    none,
    click,
    double_click,
};

/// Called where the widget is made.
void present(QWidget& widget, SpokenRole role, Reaction reaction);

/// Gives a widget, and what the toolkit put into it, the name that screen readers say.
void show_name(QWidget& widget, QString const& name);

}  // namespace navarun::desktop
