// Entries and the selected one.
#include "shell/screen/list.h"

#include <utility>

namespace navarun::screen {

ListPlace& ListPlace::operator=(int value) {
    // None needs no look at the entries, which may be many and not yet read.
    int const place = value < 0 || value >= m_owner->count() ? -1 : value;
    if (m_value != place) detail::mark_changed(*m_owner);
    m_value = place;
    if (place >= 0 && m_owner->on_click) m_owner->on_click();
    return *this;
}

List::List(Form& form, std::string_view name, Design const& design, Control* container,
           Kind kind)
    : TextControl{form, container, kind, name, {}, design}, ListIndex{*this} {}

std::vector<std::string> const& List::entries() const {
    if (m_stale) {
        m_stale = false;
        m_entries = m_source();
    }
    return m_entries;
}

std::string List::selected() const {
    return ListIndex.get() < 0 ? std::string{}
                               : entries()[static_cast<std::size_t>(ListIndex.get())];
}

void List::entries_changed() {
    ++m_version;
    detail::mark_changed(*this);
}

void List::add(std::string entry) {
    m_entries.push_back(std::move(entry));
    entries_changed();
}

void List::remove(int place) {
    m_entries.erase(m_entries.begin() + place);
    ListIndex = -1;
    entries_changed();
}

void List::clear() {
    m_entries.clear();
    ListIndex = -1;
    entries_changed();
}

void List::set_source(std::function<std::vector<std::string>()> source) {
    m_source = std::move(source);
    refresh();
}

void List::refresh() {
    m_stale = static_cast<bool>(m_source);
    ListIndex = -1;
    entries_changed();
}

void List::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("List", &entries());
    visitor.property("ListIndex", ListIndex.get());
}

DropDown::DropDown(Form& form, std::string_view name, Design const& design)
    : List{form, name, design, nullptr, Kind::drop_down} {}

void DropDown::visit(PropertyVisitor& visitor) const {
    List::visit(visitor);
    std::string const text = selected();
    visitor.property("Text", std::string_view{text});
}

}  // namespace navarun::screen
