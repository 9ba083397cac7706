// How a colour is written.
#include "shell/screen/colour.h"

#include <cstdio>

namespace navarun::screen {

std::string to_text(Colour colour) {
    if (colour.is_system()) {
        switch (colour.role()) {
            case SystemColour::title_bar:
                return "system:title-bar";
            case SystemColour::window:
                return "system:window";
            case SystemColour::highlight_3d:
                return "system:3d-highlight";
        }
    }
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%06X", static_cast<unsigned>(colour.rgb()));
    return text.data();
}

}  // namespace navarun::screen
