// The table of the families.
#include "chart/colour_schemes.h"

namespace navarun {

namespace {

using screen::Colour;

constexpr SchemeFamily azure{
    .picture_member = 1,
    .window = Colour{0xBDE7F7},
    .reading_field = Colour{0xCCE2FC},
    .record_list = Colour{0x000040},
    .band = Colour{0x2C8EDC},
    .definition = Colour{0xCCE2FC},
    .small_window = Colour{0xB4CEFC},
    .list = Colour{0xCCE2FC},
    .small_window_title = Colour{0x2C8EDC},
};

constexpr SchemeFamily mauve{
    .picture_member = 0,
    .window = Colour{0xE4CEFC},
    .reading_field = Colour{0xF4E0F2},
    .record_list = Colour{0x400040},
    .band = Colour{0xC34AED},
    .definition = Colour{0xE4CEFC},
    .small_window = Colour{0xCCB2FC},
    .list = Colour{0xEEE1FD},
    .small_window_title = Colour{0x2C8EDC},
};

}  // namespace

SchemeFamily const& family_of(int scheme) { return scheme <= 1 ? azure : mauve; }

}  // namespace navarun
