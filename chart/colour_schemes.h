// The four colour schemes of the window.
#pragma once

#include "shell/screen/colour.h"

namespace navarun {

inline constexpr int scheme_count = 4;

/// What a scheme sets depends on its family alone, but for the chart's own picture.
struct SchemeFamily {
    int picture_member;  // of the pictures that have one for each family
    screen::Colour window;
    screen::Colour reading_field;
    screen::Colour record_list;
    screen::Colour band;
    screen::Colour definition;
    screen::Colour small_window;
    screen::Colour list;
    screen::Colour small_window_title;
};

/// @param scheme  0 and 1 azure, 2 and 3 mauve
SchemeFamily const& family_of(int scheme);

}  // namespace navarun
