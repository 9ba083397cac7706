// Values of the screen model in the toolkit's types.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <string>
#include <string_view>

#include "shell/screen/control.h"
#include "shell/screen/units.h"

namespace navarun::desktop {

using screen::twips_per_pixel;
/// At which the window is designed.
inline constexpr int pixels_per_inch = screen::twips_per_inch / twips_per_pixel;

int to_pixels(int twips);
QRect to_rect(screen::PlacedControl const& control);

/// UTF-8 with CR LF to the toolkit's text with LF, and back.
QString to_qt(std::string_view text);
std::string from_qt(QString const& text);

/// System colours take the light ones that the window is designed with, whatever the theme.
QColor to_qt(screen::Colour colour);

/// The tone of the line work that belongs to a window of that ground.
QColor deep_tone_on(QColor const& ground);

/// In pixels (points times 4/3), so that texts and boxes scale together.
/// The font of that name, or what the system has of the same metrics.
QFont font_named(std::string_view name);
QFont font_of(screen::TextControl const& control);

/// A tool tip whose text is shown as it stands, never read as markup.
QString plain_tooltip(std::string_view text);

}  // namespace navarun::desktop
