// The triple coincidence of the lord of the period, the lord of the year and the lords of
// months.
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace navarun {

struct TriDeva {
    std::string_view kind;   // "", "C" or "T"
    std::vector<int> cells;  // cells, 1..12, of the months of the period's lord: none to two
};

/// Compares the names as they stand in the grid.
/// @param months  the names in the month cells 1 to 12.
TriDeva find_tri_deva(std::string_view period_lord, std::string_view year_lord,
                      std::array<std::string_view, 12> const& months);

struct MarkPlace {
    int left;
    int top;
};

// Upper left corner of the boxes of cells 1 to 12, in the units of the chart.
// clang-format off
inline constexpr std::array<MarkPlace, 12> mark_places{{
    {2080, 400},
    {3720, 400},
    {5360, 400},
    {5360, 2020},
    {5360, 3620},
    {5360, 5220},
    {3720, 5220},
    {2080, 5220},
    {450,  5220},
    {450,  3620},
    {450,  2020},
    {450,  400},
}};
// clang-format on

}  // namespace navarun
