// The windows.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/screen/control.h"

namespace navarun::screen {

/// Where a window stands among the windows of the desktop.
/// `bottom` sends it there once; it then comes and goes as others do.
enum class Stacking : std::uint8_t { normal, topmost, bottom };

/// A window: its controls in stacking order, the lowest first.
class Form : public Control {
  public:
    Form(Screen& screen_, std::string_view name, Design const& design);
    void visit(PropertyVisitor& visitor) const override;

    Screen& screen() const { return *m_screen; }
    std::vector<Control*> const& controls() const { return m_controls; }
    /// The control of that name and index; null where there is none.
    Control* find(std::string_view name, std::optional<int> index) const;

    /// In the order in which Tab visits them; what is not named here follows in stacking order.
    std::vector<Control*> tab_order;

    Property<std::string> Caption;
    Property<Colour> BackColor;
    Property<int> Width;
    Property<int> Height;
    Property<screen::Stacking> Stacking;
    /// While it is shown the user can do nothing in any other window.
    bool Modal = false;
    /// Clicked by Return and by Escape wherever the keyboard is in the window; null for none.
    Button* default_button = nullptr;
    Button* cancel_button = nullptr;

    /// Shows the window; the first time, and after each unloading, its load runs before.
    void open();
    /// Takes the window off the screen; it keeps what stands in it.
    void hide();
    /// Takes the window off the screen; it opens anew.
    void unload();
    std::function<void()> on_load;
    /// Where a window beside the main one opens, from the main window's upper left corner.
    Place const Opening;

  private:
    friend class Control;
    Screen* m_screen;
    std::vector<Control*> m_controls;
    bool m_loaded = false;
};

}  // namespace navarun::screen
