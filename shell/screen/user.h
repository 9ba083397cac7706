// What a user can do to the controls, whoever stands for her: a person at a window or a program
// at a pipe. One place says what each act moves, writes and fires, and what no user could do.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "shell/screen/screen.h"

namespace navarun::screen {

class CheckBox;
class EntryControl;
class OptionButton;
class ScrollBar;

/// An act that no user could do: the control is hidden, disabled or read-only, its window is
/// closed, or it does not take what was meant for it.
class Refused : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A list entry that is not there.
class UnknownEntry : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A value that the control cannot take.
class BadValue : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What the mouse does in a control.
enum class MouseEvent : std::uint8_t { down, move, up };

/// The acts. Every one throws Refused where no user could do it; what else it throws stands
/// with it.
class User {
  public:
    explicit User(Screen& screen) : m_screen{&screen} {}

    /// Moves the focus to `control`.
    void focus(Control& control);

    /// Types one character into the control that has the focus: KeyPress, and where the handler
    /// does not swallow it, the character replaces the selection and Change fires. What finds
    /// no room is dropped.
    void type(char32_t character);
    /// Moves the focus to `control`, then types. Where a handler moves the focus, the
    /// characters that are left go to the control that now has it.
    void type(Control& control, std::string_view text);

    /// KeyPress alone, for who edits the text on her own side and tells it by edit().
    /// @return whether the key is swallowed. True also where the control takes no text.
    bool press(EntryControl& control, char32_t character);
    /// An edit made in place, with the caret where it now stands, in characters. REQUIRES that
    /// `control` has the focus; an edit that differs in nothing fires nothing.
    void edit(EntryControl& control, std::string_view text, int caret);

    /// The edit of a text as a whole; what does not fit is cut, what is no digit is dropped
    /// from a date field.
    void set_text(EntryControl& control, std::string_view text);
    /// Throws BadValue outside the range of the scroll bar.
    void set_position(ScrollBar& control, int value);
    /// The same with the thumb, from where it stands.
    void drag(ScrollBar& control, int value);
    void set_option(OptionButton& control, bool chosen);
    void set_check(CheckBox& control, int mark);

    /// Takes an entry of a combo or list by its place, from 0. Throws UnknownEntry where there
    /// is none.
    void choose(Control& control, int entry);
    /// The same by its text.
    void choose(Control& control, std::string_view entry);

    void click(Control& control);
    void double_click(Control& control);
    void hover(Control& control);
    /// KeyDown and KeyPress of a key code; the key edits nothing. While it lasts,
    /// key_held() tells the key.
    void key(Control& control, int code);
    /// Drops what is dragged on `control`: drag over, then drop. Refused too without a drag.
    void drop(Control& control);
    /// Drops a file from outside on `control`. Refused too where it takes none.
    void drop_file(Control& control, std::string const& path);
    void mouse(Control& control, MouseEvent event, Mouse const& where);
    void close(Form& form);

    /// The key that the user holds down; 0 for none.
    int key_held() const { return m_key_held; }

  private:
    /// What each act on a control begins with.
    void begin_act(Control const& control);
    /// Focus by a click: moves it where the control takes it.
    void touch(Control& control);
    /// Return and Escape click the button that its window ties to them.
    void press_button_of(Form const& form, int code);

    Screen* m_screen;
    int m_key_held = 0;
};

}  // namespace navarun::screen
