// Focus and the list of changed controls.
#include "shell/screen/screen.h"

#include <algorithm>
#include <utility>

#include "shell/screen/entry.h"

namespace navarun::screen {

Form* Screen::find_form(std::string_view name) const {
    auto const found =
        std::ranges::find_if(m_forms, [&](Form const* form) { return form->name() == name; });
    return found == m_forms.end() ? nullptr : *found;
}

Form* Screen::modal_form() const {
    auto const found = std::ranges::find_if(
        m_forms, [](Form const* form) { return form->Modal && form->Visible; });
    return found == m_forms.end() ? nullptr : *found;
}

void Screen::tick_timers() {
    for (auto* form : m_forms) {
        if (!form->Visible) continue;
        for (auto* control : form->controls()) {
            if (control->kind() != Kind::timer) continue;
            auto const& timer = static_cast<Timer const&>(*control);
            if (timer.on_tick) timer.on_tick();
        }
    }
}

void Screen::move_focus(Control& control) {
    if (m_focus == &control) return;
    Control* const left = std::exchange(m_focus, &control);
    if (left != nullptr) {
        detail::mark_changed(*left);
        if (left->on_lost_focus) left->on_lost_focus();
    }
    // A handler of LostFocus may have moved the focus on.
    if (m_focus != &control) return;
    if (control.kind() == Kind::text_field || control.kind() == Kind::combo) {
        static_cast<EntryControl&>(control).select_all();
    }
    detail::mark_changed(control);
    if (control.on_got_focus) control.on_got_focus();
}

void Screen::begin_drag(Control& carrier) {
    m_dragged = &carrier;
    detail::mark_changed(carrier);
}

void Screen::end_drag() {
    if (m_dragged != nullptr) detail::mark_changed(*m_dragged);
    m_dragged = nullptr;
}

std::vector<Control*> Screen::take_changed() {
    auto changed = std::exchange(m_changed, {});
    for (Control* control : changed) control->m_marked = false;
    return changed;
}

}  // namespace navarun::screen
