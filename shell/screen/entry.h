// The controls in which the user writes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/screen/control.h"

namespace navarun::screen {

/// The text of an entry control. A routine that writes it fires Change always, also where that
/// text already stands: a load and a reset rely on it.
class EntryControl;
class EntryText {
  public:
    EntryText(EntryControl& owner, std::string text)
        : m_owner{&owner}, m_text{std::move(text)} {}
    EntryText(EntryText const&) = delete;
    EntryText& operator=(EntryText const&) = delete;

    std::string const& get() const { return m_text; }
    operator std::string const&() const { return m_text; }
    EntryText& operator=(std::string_view text);

  private:
    friend class EntryControl;
    EntryControl* m_owner;
    std::string m_text;
};

/// A control in which the user writes: text field, text area or combo.
class EntryControl : public TextControl {
  public:
    EntryControl(Form& form, Control* container, Kind kind, std::string_view name,
                 std::optional<int> index, Design const& design);
    void visit(PropertyVisitor& visitor) const override;

    bool read_only() const { return m_read_only; }
    bool digits_only() const { return m_digits_only; }
    int max_length() const { return m_max_length; }

    /// The part of the text that the next character replaces; in characters from the start.
    /// An empty part is the caret.
    struct Selection {
        int start = 0;
        int length = 0;
    };
    Selection selection() const { return m_selection; }
    /// Cuts what lies outside the text.
    void select(Selection selection);
    void select_all();
    void caret_to_end();
    /// Whether one more character fits, the selected ones making room.
    bool has_room() const;

    /// The user's edit: takes `text` over, and fires Change where it differs from the one in
    /// force. The caret then stands at `caret` (at the end where none is given).
    void edit(std::string text, std::optional<int> caret = {});
    /// The text as it would stand with `character` typed over the selection.
    std::string with_typed(char32_t character) const;

    EntryText Text;

  private:
    friend class EntryText;
    int length() const;

    bool m_read_only;
    bool m_digits_only;
    int m_max_length;
    Selection m_selection;
};

class TextField : public EntryControl {
  public:
    TextField(Form& form, std::string_view name, Design const& design,
              Control* container = nullptr);
};

/// Several lines, with a vertical scroll bar.
class TextArea : public EntryControl {
  public:
    TextArea(Form& form, std::string_view name, Design const& design,
             Control* container = nullptr);
};

/// A short text field with a list of ready texts.
class Combo : public EntryControl {
  public:
    Combo(Form& form, std::string_view name, Design const& design,
          std::vector<std::string> entries);
    void visit(PropertyVisitor& visitor) const override;

    std::vector<std::string> const& entries() const { return m_entries; }
    /// Place of the entry that stands in the text, from 0; -1 for none.
    int list_index() const;

  private:
    std::vector<std::string> m_entries;
};

}  // namespace navarun::screen
