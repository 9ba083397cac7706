// A page as it is drawn: operations in page inches from its upper left corner, in their order.
// The printer, the preview and whoever keeps a record of it are given the same page.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "shell/screen/colour.h"
#include "shell/screen/picture.h"
#include "shell/screen/units.h"

namespace navarun::screen {

/// Inches.
struct PageSize {
    double width = 0;
    double height = 0;
    bool operator==(PageSize const&) const = default;
};

/// 210 by 297 mm, in whole twips.
inline constexpr PageSize a4{.width = 11906.0 / twips_per_inch,
                             .height = 16838.0 / twips_per_inch};

/// A black line from one point to another, or the black outline of the rectangle they span.
struct PageStroke {
    enum class Shape : bool { line, box };
    Shape shape = Shape::line;
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    bool operator==(PageStroke const&) const = default;
};

/// A picture file and where it stands on the page.
struct PageFile {
    std::string path;
    double x = 0;
    double y = 0;
    PageSize size;
    bool operator==(PageFile const&) const = default;
};

struct PagePicture {
    Picture picture;
    double x = 0;
    double y = 0;
    PageSize size;
    bool natural = false;  // the size is the picture's own
    /// Set where the picture is a file.
    std::optional<PageFile> file;
    bool operator==(PagePicture const&) const = default;
};

/// A text by its upper left corner. A line break in it begins a new line below; tabs lead to
/// the tab stops.
struct PageText {
    double x = 0;
    double y = 0;
    std::string text;
    std::string font;
    double size = 0;  // points, times the ratio of the page
    bool bold = false;
    Colour colour;
    /// A text that would cross it is drawn narrower; 0 for none.
    double right_edge = 0;
    bool operator==(PageText const&) const = default;
};

/// Tab stops, in inches from the left end of a text: the first clears the longest line of a
/// column, so that what follows the same number of tabs stands in one line down the page.
inline constexpr double first_tab_stop = 2.5;
inline constexpr double tab_step = 0.5;

using PageOperation = std::variant<PageStroke, PagePicture, PageText>;

struct Page {
    /// What an inch of the page measures where it is shown; 1 on paper.
    double ratio = 1;
    std::vector<PageOperation> operations;
    bool operator==(Page const&) const = default;
};

}  // namespace navarun::screen
