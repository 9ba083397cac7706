// The whole numbers of a place on the screen.
#pragma once

namespace navarun {

/// `number` rounded, its half to the even one. Throws FatalError where 16 bits do not hold it:
/// there the run has always ended.
/// @param attempted  what was tried, a French sentence for the report
int small_number(double number, char const* attempted);

}  // namespace navarun
