// How the period of an age is written into the twelve cells, the exceptions of the nine
// hand-kept sequences included.
#pragma once

#include <optional>

#include "periods/lord_circle.h"

namespace navarun {

/// What a sequence does at one age.
struct DashaStep {
    /// Row of `dates_age` that holds the start date; empty in a first year, whose start date is
    /// the first day of the cycle year shown.
    std::optional<int> date_row;
    /// The age whose cell is the first of the row.
    int column_age;
    /// Months from one cell to the next.
    int months;
    /// The lord that the sequence assigns to the cells; empty where it assigns none, and the
    /// cells show the lord last assigned by any sequence.
    std::optional<Lord> assigned;
};

/// @param column  the sequence, 1..9; another one is a programming error.
/// @return empty where the sequence has no case for `age`: nothing is then written. So at ages
///         outside 1..350.
std::optional<DashaStep> dasha_step(int column, int age);

/// Whether the sequence repairs the dates of a birth on 29 February: Rahu's alone does.
bool repairs_leap_days(int column);

}  // namespace navarun
