// The caption that tells which lord rules an age and which of his years it is.
#pragma once

#include <string>

namespace navarun {

struct LalKitab {
    std::string caption;
    int year_rank;  // 0 for Chandra, who has one year alone
};

/// @param column  the sequence, 1..9; another one is a programming error.
/// @return null where the sequence has no case for `age`, as for any age outside 1..351.
///         Age 351 is as age 1.
LalKitab const* lal_kitab(int column, int age);

}  // namespace navarun
