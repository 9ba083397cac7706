// Opening, closing and looking up.
#include "shell/screen/form.h"

#include <algorithm>
#include <utility>

#include "shell/screen/screen.h"

namespace navarun::screen {

Form::Form(Screen& screen_, std::string_view name, Design const& design)
    : Control{*this, nullptr, Kind::form, name, {}, design},
      Caption{*this, std::string{design.text}},
      BackColor{*this, design.back},
      Width{*this, design.place.width},
      Height{*this, design.place.height},
      Stacking{*this, screen::Stacking::normal},
      Opening{design.place},
      m_screen{&screen_} {
    screen_.m_forms.push_back(this);
}

void Form::open() {
    if (!std::exchange(m_loaded, true) && on_load) on_load();
    Visible = true;
}

void Form::hide() {
    Visible = false;
    // Nothing in a window that is gone has the keyboard.
    auto* const focused = m_screen->focus();
    if (focused != nullptr && &focused->form() == this) m_screen->drop_focus();
}

void Form::unload() {
    hide();
    m_loaded = false;
}

Control* Form::find(std::string_view name, std::optional<int> index) const {
    auto const found = std::ranges::find_if(m_controls, [&](Control const* control) {
        return control->index() == index && control->name() == name;
    });
    return found == m_controls.end() ? nullptr : *found;
}

void Form::visit(PropertyVisitor& visitor) const {
    Control::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("BackColor", BackColor.get());
    visitor.property("Width", Width.get());
    visitor.property("Height", Height.get());
}

}  // namespace navarun::screen
