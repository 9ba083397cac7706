// Marks, choices and positions.
#include "shell/screen/choice.h"

#include <algorithm>

#include "shell/screen/form.h"

namespace navarun::screen {

void CheckValue::preset(int value) {
    m_value = value;
    detail::mark_changed(*m_owner);
}

CheckValue& CheckValue::operator=(int value) {
    int const mark = value != 0 ? 1 : 0;
    if (m_value == mark) return *this;
    m_value = mark;
    detail::mark_changed(*m_owner);
    if (m_owner->on_click) m_owner->on_click();
    return *this;
}

CheckBox::CheckBox(Form& form, std::string_view name, Design const& design, Control* container)
    : TextControl{form, container, Kind::check_box, name, {}, design},
      Caption{*this, std::string{design.text}},
      Value{*this} {}

void CheckBox::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Value", Value.get());
}

OptionValue& OptionValue::operator=(bool value) {
    if (m_value == value) return *this;
    m_value = value;
    detail::mark_changed(*m_owner);
    if (!value) return *this;
    for (auto* control : m_owner->form().controls()) {
        bool const same_group = control->kind() == Kind::option_button && control != m_owner &&
                                control->container() == m_owner->container();
        if (same_group) static_cast<OptionButton*>(control)->Value = false;
    }
    if (m_owner->on_click) m_owner->on_click();
    return *this;
}

OptionButton::OptionButton(Form& form, std::string_view name, Design const& design,
                           Control* container, std::optional<int> index)
    : TextControl{form, container, Kind::option_button, name, index, design},
      Caption{*this, std::string{design.text}},
      Value{*this, false} {}

void OptionButton::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Value", Value.get());
}

ScrollPosition& ScrollPosition::operator=(int value) {
    int const inside = std::clamp(value, m_owner->Minimum.get(), m_owner->Maximum.get());
    if (m_value == inside) return *this;
    m_value = inside;
    detail::mark_changed(*m_owner);
    if (m_owner->on_change) m_owner->on_change();
    return *this;
}

ScrollBar::ScrollBar(Form& form, std::string_view name, Design const& design)
    : PlacedControl{form, nullptr, Kind::scroll_bar, name, {}, design},
      Value{*this, design.minimum},
      Minimum{*this, design.minimum},
      Maximum{*this, design.maximum} {}

void ScrollBar::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("Value", Value.get());
}

void ScrollBar::drag(int value) {
    m_thumb = value;
    if (on_scroll) on_scroll();
    m_thumb.reset();
    Value = value;
}

}  // namespace navarun::screen
