// The controls that the user sets to a value: check box, option button and scroll bar.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/screen/control.h"

namespace navarun::screen {

/// The mark of a check box, 0 or 1. Click fires where it differs, whoever sets it.
class CheckBox;
class CheckValue {
  public:
    explicit CheckValue(CheckBox& owner) : m_owner{&owner} {}
    CheckValue(CheckValue const&) = delete;
    CheckValue& operator=(CheckValue const&) = delete;

    int get() const { return m_value; }
    operator int() const { return m_value; }
    CheckValue& operator=(int value);
    /// As the window is designed to open: fires nothing.
    void preset(int value);

  private:
    CheckBox* m_owner;
    int m_value = 0;
};

class CheckBox : public TextControl {
  public:
    CheckBox(Form& form, std::string_view name, Design const& design,
             Control* container = nullptr);
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> Caption;
    CheckValue Value;
};

/// Whether an option button is the chosen one. Choosing it takes the choice from the others of
/// its container; Click fires where the button becomes the chosen one, whoever sets it, and not
/// where it loses the choice or has it already.
class OptionButton;
class OptionValue {
  public:
    OptionValue(OptionButton& owner, bool value) : m_owner{&owner}, m_value{value} {}
    OptionValue(OptionValue const&) = delete;
    OptionValue& operator=(OptionValue const&) = delete;

    bool get() const { return m_value; }
    operator bool() const { return m_value; }
    OptionValue& operator=(bool value);

  private:
    OptionButton* m_owner;
    bool m_value;
};

class OptionButton : public TextControl {
  public:
    OptionButton(Form& form, std::string_view name, Design const& design, Control* container,
                 std::optional<int> index);
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> Caption;
    OptionValue Value;
};

/// The position of a scroll bar. Whoever writes it, Change fires where the position differs.
class ScrollBar;
class ScrollPosition {
  public:
    ScrollPosition(ScrollBar& owner, int value) : m_owner{&owner}, m_value{value} {}
    ScrollPosition(ScrollPosition const&) = delete;
    ScrollPosition& operator=(ScrollPosition const&) = delete;

    int get() const { return m_value; }
    operator int() const { return m_value; }
    /// A value outside the range is taken as its nearer end.
    ScrollPosition& operator=(int value);

  private:
    ScrollBar* m_owner;
    int m_value;
};

class ScrollBar : public PlacedControl {
  public:
    ScrollBar(Form& form, std::string_view name, Design const& design);
    void visit(PropertyVisitor& visitor) const override;

    ScrollPosition Value;
    Property<int> Minimum;
    Property<int> Maximum;

    /// Where the thumb stands: the value, but while the thumb is dragged the place under the
    /// pointer.
    int thumb() const { return m_thumb.value_or(Value.get()); }
    /// The thumb is dragged to `value` and let go there: Scroll, then Change where the handler
    /// of Scroll has not fired it already.
    void drag(int value);

  private:
    std::optional<int> m_thumb;
};

}  // namespace navarun::screen
