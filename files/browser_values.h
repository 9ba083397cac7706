// What the browser remembers between two events.
#pragma once

namespace navarun {

struct BrowserValues {
    int deplace_x = 0;  // the pointer over the list, in twips
    int deplace_y = 0;
};

}  // namespace navarun
