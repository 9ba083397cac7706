// Moving the age looked at, cheaply: the age fields follow at once, the grid with the next
// generation.
#pragma once

#include <string_view>

#include "core/calendar.h"

namespace navarun {

class Program;

/// Shows the cycle year of an age in the captions of its first and last day; `fin_annee_defile`
/// becomes the day before the first.
/// @param birth  a date that exists
/// @param age    >= 0
void show_cycle_year(Program& program, YearMonthDay birth, int age);

/// Writes which lord rules the current age, and which of his years it is. Where the person's
/// sequence has no case for the age, the caption stays.
void defile_MahaDasha(Program& program);

/// Keeps whether the grid is true or stale, in the Tag of the age bar.
/// @param state  "vert" or "rouge" in any case; any other text is kept and shows nothing.
void change_couleurAge(Program& program, std::string_view state);

/// Recalculates for the age shown, as Enter on the age bar does. The order is not that of a
/// generation, and the Tri-Deva marks stay those of the last one.
void recalculate_for_age(Program& program);

/// The change, the drag and the keys of the age bar.
void wire_age_scroll(Program& program);

}  // namespace navarun
