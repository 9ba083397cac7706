// The comparison of the names.
#include "periods/tri_deva_rule.h"

#include "core/text.h"

namespace navarun {

TriDeva find_tri_deva(std::string_view period_lord, std::string_view year_lord,
                      std::array<std::string_view, 12> const& months) {
    TriDeva found;
    if (text::equal_ignoring_case(year_lord, period_lord)) {
        // Exactly the capitals, which no name of the grid is written in: so every mark is of
        // the kind "T", and the kind "C" waits in the report.
        found.kind = year_lord == "GURU" || year_lord == "SHUKRA" ? "C" : "T";
    }
    found.cells.reserve(2);
    for (std::size_t i = 0; i < months.size(); ++i) {
        if (text::equal_ignoring_case(period_lord, months[i])) {
            found.cells.push_back(static_cast<int>(i) + 1);
        }
    }
    return found;
}

}  // namespace navarun
