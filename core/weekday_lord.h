// The weekday of the birth, its lord and its reading: the common tail of every change of date.
#pragma once

namespace navarun {

class Program;

/// Works weekday, lord and numbers out for the date on screen, allows or forbids the Julian
/// calendar by the year, and marks the grid as stale. A date that cannot be read leaves weekday
/// and lord as they stand.
void trouverJourdeSemaine(Program& program);

/// Whether date and calendar are still those with which trouverJourdeSemaine last worked.
bool weekday_is_current(Program const& program);

}  // namespace navarun
