// The four date fields, and a birth date chosen in them.
#pragma once

#include <string>

#include "tests/support/visit.h"

namespace navarun::test {

/// In the order in which they are typed.
inline constexpr char const* date_fields[]{"Combo_jourNaiss", "Combo_moisNaiss",
                                           "Combo_AnNaiss1", "Combo_AnNaiss2"};

inline std::string date(Visit& visit) { return visit.text("date_naissance"); }

/// From the lists, the year first, so that every day finds its month.
inline void choose_date(Visit& visit, char const* day, char const* month, char const* century,
                        char const* year) {
    visit.choose("Combo_AnNaiss1", century);
    visit.choose("Combo_AnNaiss2", year);
    visit.choose("Combo_moisNaiss", month);
    visit.choose("Combo_jourNaiss", day);
}

}  // namespace navarun::test
