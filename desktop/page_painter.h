// Draws a page of the program on paper and on the screen.
#pragma once

#include <QPainter>

#include "desktop/pictures.h"
#include "shell/screen/page.h"

namespace navarun::desktop {

enum class PageDevice : bool {
    screen,  // pictures in pixels, at the real resolution
    paper,   // pictures in vectors
};

/// Draws `page` with its upper left corner at the painter's origin.
/// @param inch  how many of the painter's units an inch of the page takes, > 0
void paint_page(QPainter& painter, Pictures& pictures, screen::Page const& page, double inch,
                PageDevice device);

/// The font of a text of a page, in units of page_text_units.
QFont page_font(screen::PageText const& text, double ratio);

/// Texts are laid out in these to the inch, whatever shows them: the lines of the preview are
/// those of the paper.
inline constexpr int page_text_units = 1200;

}  // namespace navarun::desktop
