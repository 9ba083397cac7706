// The operations as the page keeps them.
#include "print/drawing_surface.h"

#include <utility>

namespace navarun {

using screen::PageStroke;

void DrawingSurface::Box(double x1, double y1, double x2, double y2) {
    m_page.operations.emplace_back(PageStroke{PageStroke::Shape::box, x1, y1, x2, y2});
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2) {
    m_page.operations.emplace_back(PageStroke{PageStroke::Shape::line, x1, y1, x2, y2});
}

void DrawingSurface::PaintPicture(screen::PagePicture picture) {
    m_page.operations.emplace_back(std::move(picture));
}

void DrawingSurface::Print(std::string text) {
    m_page.operations.emplace_back(screen::PageText{
        .x = CurrentX,
        .y = CurrentY,
        .text = std::move(text),
        .font = std::string{FontName},
        .size = FontSize * m_page.ratio,
        .bold = FontBold,
        .colour = ForeColor,
        .right_edge = right_edge,
    });
}

void DrawingSurface::Print(double x, double y, std::string text) {
    CurrentX = x;
    CurrentY = y;
    Print(std::move(text));
}

}  // namespace navarun
