// All windows of the program, the one focus they share, and what has changed on them.
#pragma once

#include <string_view>
#include <vector>

#include "shell/screen/control.h"
#include "shell/screen/form.h"

namespace navarun::screen {

class Screen {
  public:
    Screen() = default;
    Screen(Screen const&) = delete;
    Screen& operator=(Screen const&) = delete;

    std::vector<Form*> const& forms() const { return m_forms; }
    /// Null where no window has that name.
    Form* find_form(std::string_view name) const;

    /// The window that blocks the others; null for none.
    Form* modal_form() const;
    /// Lets the timers of the windows shown tick once.
    void tick_timers();

    /// The control that has the keyboard; null before the first focus.
    Control* focus() const { return m_focus; }
    /// Moves the focus. The control that had it gets LostFocus first, at once; a field or combo
    /// that gets it has its whole text selected; then it gets GotFocus. Nothing happens where
    /// it already is there. REQUIRES control.takes_focus().
    void move_focus(Control& control);
    /// No control has the focus any more; nothing fires.
    void drop_focus() { m_focus = nullptr; }

    /// Begins to drag what `carrier` stands for. It ends with a drop, or with anything else
    /// that the user does.
    void begin_drag(Control& carrier);
    void end_drag();
    /// What is being dragged; null for nothing.
    Control* dragged() const { return m_dragged; }

    /// The controls written to since the last call, each once, in the order of the first write.
    std::vector<Control*> take_changed();

  private:
    friend class Form;
    friend void detail::list_as_changed(Control& owner);

    std::vector<Form*> m_forms;
    std::vector<Control*> m_changed;
    Control* m_focus = nullptr;
    Control* m_dragged = nullptr;
};

}  // namespace navarun::screen
