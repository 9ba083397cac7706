// The lists, of which the user chooses an entry.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/screen/control.h"

namespace navarun::screen {

/// The selected place of a list, from 0; -1 for none. A routine that selects an entry fires the
/// list's Click; taking the selection away fires nothing.
class List;
class ListPlace {
  public:
    explicit ListPlace(List& owner) : m_owner{&owner} {}
    ListPlace(ListPlace const&) = delete;
    ListPlace& operator=(ListPlace const&) = delete;

    int get() const { return m_value; }
    operator int() const { return m_value; }
    /// A place outside the list is none.
    ListPlace& operator=(int value);

  private:
    friend class List;
    List* m_owner;
    int m_value = -1;
};

/// Entries of one line each. They are held as they are added, or read from a source when
/// somebody looks: a list that is hidden and has become stale costs nothing.
class List : public TextControl {
  public:
    List(Form& form, std::string_view name, Design const& design, Control* container = nullptr,
         Kind kind = Kind::list);
    void visit(PropertyVisitor& visitor) const override;

    std::vector<std::string> const& entries() const;
    int count() const { return static_cast<int>(entries().size()); }
    /// Another number after each change of the entries.
    unsigned version() const { return m_version; }
    /// The selected entry; empty where there is none.
    std::string selected() const;
    void add(std::string entry);
    /// REQUIRES a place in the list. The selection goes.
    void remove(int place);
    void clear();
    /// From now on the entries come from `source`, asked anew after each refresh.
    void set_source(std::function<std::vector<std::string>()> source);
    /// The entries have changed at their source. The selection goes.
    void refresh();

    ListPlace ListIndex;

  private:
    std::function<std::vector<std::string>()> m_source;
    void entries_changed();

    unsigned m_version = 1;
    mutable bool m_stale = false;
    mutable std::vector<std::string> m_entries;
};

/// A list of which only the selected entry shows until it is opened.
class DropDown : public List {
  public:
    DropDown(Form& form, std::string_view name, Design const& design);
    void visit(PropertyVisitor& visitor) const override;
};

}  // namespace navarun::screen
