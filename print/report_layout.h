// Where things stand on the printed chart, in page inches.
#pragma once

#include <array>

#include "shell/screen/page.h"

namespace navarun {

/// The rows of a cell, each by the upper left corner of its text; `x` is that of all.
struct CellPlace {
    double x;
    double lord;
    double lord_date;
    double year;
    double month;
    double month_date;
};

struct PagePoint {
    double x;
    double y;
};

// Cells 1 to 12, the ring clockwise from the top row as on the screen. Cell 10 stands 0.03 inch
// lower than its mirror, cell 5.
// clang-format off
inline constexpr std::array<CellPlace, 12> cell_places{{
    {2.4,  3.37, 3.54, 3.83, 4.14, 4.32},
    {3.65, 3.37, 3.54, 3.83, 4.14, 4.32},
    {4.92, 3.37, 3.54, 3.83, 4.14, 4.32},
    {4.92, 4.6,  4.78, 5.06, 5.37, 5.55},
    {4.92, 5.81, 6.01, 6.28, 6.61, 6.79},
    {4.92, 7.07, 7.24, 7.51, 7.85, 8.03},
    {3.65, 7.07, 7.24, 7.51, 7.85, 8.03},
    {2.4,  7.07, 7.24, 7.51, 7.85, 8.03},
    {1.15, 7.07, 7.24, 7.51, 7.85, 8.03},
    {1.15, 5.84, 6.01, 6.28, 6.61, 6.79},
    {1.15, 4.6,  4.78, 5.06, 5.37, 5.55},
    {1.15, 3.37, 3.54, 3.83, 4.14, 4.32},
}};

// The numbers of the palaces, cells 1 to 12.
inline constexpr std::array<PagePoint, 12> palace_places{{
    {3.16, 4.34},
    {4.42, 4.34},
    {5.68, 4.34},
    {5.68, 5.57},
    {5.68, 6.79},
    {5.68, 8.02},
    {4.42, 8.02},
    {3.16, 8.02},
    {1.9,  8.02},
    {1.9,  6.79},
    {1.9,  5.57},
    {1.9,  4.34},
}};

// The marks of the triple coincidence, cells 1 to 12.
inline constexpr std::array<PagePoint, 12> trideva_places{{
    {1.97,    3.178},
    {3.2281,  3.18},
    {4.486,   3.178},
    {4.486,   4.408},
    {4.486,   5.631},
    {4.486,   6.852},
    {3.2281,  6.852},
    {1.97,    6.852},
    {0.71,    6.852},
    {0.71146, 5.63},
    {0.71146, 4.4079},
    {0.71,    3.178},
}};
// clang-format on

/// The marks at their natural size.
inline constexpr screen::PageSize trideva_size{0.19, 0.19};
inline constexpr screen::PageSize calendar_mark_size{17.0 / 96, 17.0 / 96};

/// The place of a cell in one of the tables. REQUIRES 1 <= cell <= 12.
template <typename Place>
constexpr Place const& of_cell(std::array<Place, 12> const& places, int cell) {
    return places[static_cast<std::size_t>(cell - 1)];
}

}  // namespace navarun
