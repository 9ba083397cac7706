// The searches round the grid.
#include "periods/step_in_progress.h"

#include "core/cells.h"

namespace navarun {

bool in_year_in_progress(Date anniversary, Date today) {
    int const days = days_between(anniversary, today);
    return days >= 1 && days <= 366;
}

int cell_after_today(DateOfCell const& date_of_cell, int start_cell, YearMonthDay today) {
    int cell = start_cell;
    do {
        auto const date = date_of_cell(cell);
        if (date && today < *date) return cell;
        cell = cell_after(cell);
    } while (cell != start_cell);
    // Today lies in the last step, whose end is the start cell.
    return start_cell;
}

std::optional<int> cell_starting_on(TextOfCell const& text_of_cell,
                                    std::string_view anniversary) {
    for (int cell = 1; cell <= 12; ++cell) {
        if (text_of_cell(cell) == anniversary) return cell;
    }
    return {};
}

}  // namespace navarun
