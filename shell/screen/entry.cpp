// Text, caret and selection.
#include "shell/screen/entry.h"

#include <algorithm>

#include "core/text.h"
#include "shell/screen/screen.h"

namespace navarun::screen {

EntryText& EntryText::operator=(std::string_view text) {
    if (m_text != text) m_text = text;
    detail::mark_changed(*m_owner);
    // A combo rewritten under the user's hands is selected, so that the next digit replaces it.
    if (m_owner->kind() == Kind::combo && m_owner->form().screen().focus() == m_owner) {
        m_owner->select_all();
    } else {
        m_owner->caret_to_end();
    }
    if (m_owner->on_change) m_owner->on_change();
    return *this;
}

EntryControl::EntryControl(Form& form, Control* container, Kind kind, std::string_view name,
                           std::optional<int> index, Design const& design)
    : TextControl{form, container, kind, name, index, design},
      Text{*this, std::string{design.text}},
      m_read_only{design.read_only},
      m_digits_only{design.digits_only},
      m_max_length{design.max_length} {}

void EntryControl::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Text", std::string_view{Text.get()});
}

int EntryControl::length() const { return text::length(Text.get()); }

void EntryControl::select(Selection selection) {
    int const whole = length();
    int const start = std::clamp(selection.start, 0, whole);
    m_selection = {start, std::clamp(selection.length, 0, whole - start)};
    detail::mark_changed(*this);
}

void EntryControl::select_all() { select({0, length()}); }

void EntryControl::caret_to_end() { select({length(), 0}); }

bool EntryControl::has_room() const {
    return m_max_length == 0 || length() - m_selection.length < m_max_length;
}

void EntryControl::edit(std::string text, std::optional<int> caret) {
    bool const differs = text != Text.m_text;
    Text.m_text = std::move(text);
    select({caret.value_or(length()), 0});
    if (differs && on_change) on_change();
}

std::string EntryControl::with_typed(char32_t character) const {
    return text::replaced(Text.get(), m_selection.start, m_selection.length, character);
}

TextField::TextField(Form& form, std::string_view name, Design const& design,
                     Control* container)
    : EntryControl{form, container, Kind::text_field, name, {}, design} {}

TextArea::TextArea(Form& form, std::string_view name, Design const& design, Control* container)
    : EntryControl{form, container, Kind::text_area, name, {}, design} {}

Combo::Combo(Form& form, std::string_view name, Design const& design,
             std::vector<std::string> entries)
    : EntryControl{form, nullptr, Kind::combo, name, {}, design},
      m_entries{std::move(entries)} {}

int Combo::list_index() const {
    auto const found = std::ranges::find(m_entries, Text.get());
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

void Combo::visit(PropertyVisitor& visitor) const {
    EntryControl::visit(visitor);
    visitor.property("List", &m_entries);
    visitor.property("ListIndex", list_index());
}

}  // namespace navarun::screen
