// The surface on which a page is drawn: the attributes of text in force, and the operations.
#pragma once

#include <string>
#include <string_view>

#include "shell/screen/page.h"

namespace navarun {

/// Draws one page, in inches from its upper left corner. What is set of the text attributes
/// stays in force until it is set again.
class DrawingSurface {
  public:
    /// @param ratio  what an inch of the page measures where it is shown, 1 on paper; sizes of
    ///               text are multiplied by it, coordinates are not.
    explicit DrawingSurface(double ratio) { m_page.ratio = ratio; }

    std::string_view FontName = "Arial";
    double FontSize = 10;  // points on paper
    bool FontBold = false;
    screen::Colour ForeColor = screen::black;
    /// What is printed stays left of it, drawn narrower where it must; 0 for no edge.
    double right_edge = 0;
    double CurrentX = 0;
    double CurrentY = 0;

    /// The black outline of a rectangle, or a black line.
    void Box(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2);
    void PaintPicture(screen::PagePicture picture);
    /// Text with its upper left corner at CurrentX, CurrentY.
    void Print(std::string text);
    void Print(double x, double y, std::string text);

    screen::Page const& page() const { return m_page; }

  private:
    screen::Page m_page;
};

}  // namespace navarun
