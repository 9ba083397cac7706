// The controls of the screen model: named fields with text, colour and visibility, and the
// events that tie them to the operations. No toolkit stands here; one shows them from outside.
// Here stand what all kinds share and those that only show or are clicked; the others have
// files of their own.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "shell/screen/colour.h"
#include "shell/screen/design.h"
#include "shell/screen/picture.h"
#include "shell/screen/property.h"

namespace navarun::screen {

class Form;
class Screen;

/// What a control is; the desktop chooses the widget by it.
enum class Kind : std::uint8_t {
    form,
    label,
    text_field,
    text_area,
    combo,
    list,
    button,
    image,
    picture_box,
    frame,
    option_button,
    check_box,
    drop_down,
    timer,
    shape,
    scroll_bar,
    menu_entry,
    menu_separator,
};

/// A pointer event in a control: place in the control's own units, 0 for no button.
struct Mouse {
    int button = 0;
    double x = 0;
    double y = 0;
};

/// A line drawn on a picture, in the picture's own units.
struct DrawnLine {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    int width = 1;  // pixels
    Colour colour;
    bool operator==(DrawnLine const&) const = default;
};

/// How a property shows itself to the pilot and the tests.
using ValueView = std::variant<std::string_view, bool, int, double, Colour, Picture const*,
                               std::vector<std::string> const*, std::vector<DrawnLine> const*>;

class PropertyVisitor {
  public:
    virtual ~PropertyVisitor() = default;
    virtual void property(std::string_view name, ValueView value) = 0;
};

namespace detail {
/// Adds `owner` to the changed controls of its screen.
void list_as_changed(Control& owner);
}  // namespace detail

/// A field of a window: its name, what all kinds share, and its events.
///
/// Events are empty until the subsystem that answers them ties itself to them; an empty event
/// is one on which nothing listens.
class Control {
  public:
    Control(Form& form, Control* container, Kind kind, std::string_view name,
            std::optional<int> index, Design const& design);
    virtual ~Control() = default;
    Control(Control const&) = delete;
    Control& operator=(Control const&) = delete;

    Kind kind() const { return m_kind; }
    /// Name without index: "Label_Dasha".
    std::string_view name() const { return m_name; }
    std::optional<int> index() const { return m_index; }
    /// Name with index, where there is one: "Label_Dasha(3)".
    std::string full_name() const;
    Form& form() const { return *m_form; }
    /// The control it lies on or the menu it stands in; null directly on the window.
    Control* container() const { return m_container; }

    /// Whether the keyboard focus can come here at all, whatever its present state.
    bool takes_focus() const;
    /// Visible and enabled, as all it stands in, in a window that is shown.
    bool can_be_used() const;
    /// Visible, as all it stands in (its window aside).
    bool is_shown() const;

    virtual void visit(PropertyVisitor& visitor) const;

  private:
    friend class Screen;
    friend void detail::mark_changed(Control& owner);

    // Beside the properties, before the events: what every write touches lies together.
    Form* m_form;
    Control* m_container;
    Kind m_kind;
    bool m_marked = false;
    std::string_view m_name;
    std::optional<int> m_index;

  public:
    Property<bool> Visible;
    Property<bool> Enabled;
    Property<std::string> Tag;
    /// What a screen reader says for the control; empty for what is there for the eye alone.
    Property<std::string> SpokenName;
    /// Composes SpokenName from what the window shows; empty where the name stays as it is.
    std::function<std::string()> speak;

    std::function<void()> on_click;
    std::function<void()> on_double_click;
    std::function<void()> on_change;
    std::function<void()> on_scroll;
    std::function<void()> on_got_focus;
    std::function<void()> on_lost_focus;
    std::function<void()> on_close;
    /// The character typed; answers true where the key is swallowed.
    std::function<bool(char32_t)> on_key_press;
    std::function<void(int)> on_key_down;
    std::function<void(Mouse const&)> on_mouse_down;
    std::function<void(Mouse const&)> on_mouse_move;
    std::function<void(Mouse const&)> on_mouse_up;
    /// A record is dragged over the control, or dropped on it.
    std::function<void()> on_drag_over;
    std::function<void()> on_drag_drop;
    /// A file is dropped from outside.
    std::function<void(std::string const& path)> on_file_drop;
};

inline void detail::mark_changed(Control& owner) {
    // A calculation writes most controls several times: it is the first that counts.
    if (owner.m_marked) return;
    owner.m_marked = true;
    list_as_changed(owner);
}

/// A control with a place on its window.
class PlacedControl : public Control {
  public:
    PlacedControl(Form& form, Control* container, Kind kind, std::string_view name,
                  std::optional<int> index, Design const& design);
    void visit(PropertyVisitor& visitor) const override;

    Property<int> Left;
    Property<int> Top;
    Property<int> Width;
    Property<int> Height;
    Property<std::string> ToolTipText;
    Property<Colour> BackColor;
    /// The pointer shown over the control; none for the desktop's own.
    Property<Picture> MouseIcon;
};

/// A placed control that shows text.
class TextControl : public PlacedControl {
  public:
    TextControl(Form& form, Control* container, Kind kind, std::string_view name,
                std::optional<int> index, Design const& design);
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> FontName;
    Property<double> FontSize;
    bool const FontItalic;
    Alignment const Align;
    Property<Colour> ForeColor;
    Property<bool> FontBold;
};

class Label : public TextControl {
  public:
    Label(Form& form, std::string_view name, Design const& design, Control* container = nullptr,
          std::optional<int> index = {});
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> Caption;
    Property<bool> Border;
    Property<bool> Opaque;
};

class Button : public TextControl {
  public:
    Button(Form& form, std::string_view name, Design const& design,
           Control* container = nullptr, std::optional<int> index = {});
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> Caption;
    Property<screen::Picture> Picture;
};

/// A picture with nothing on it.
class Image : public PlacedControl {
  public:
    Image(Form& form, std::string_view name, Design const& design, Control* container = nullptr,
          std::optional<int> index = {});
    void visit(PropertyVisitor& visitor) const override;

    Property<screen::Picture> Picture;
    bool const Stretched;
};

class Frame : public TextControl {
  public:
    Frame(Form& form, std::string_view name, Design const& design);
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> Caption;
    Property<bool> Border;
};

/// A rectangle round or behind other controls.
class Shape : public PlacedControl {
  public:
    Shape(Form& form, std::string_view name, Design const& design,
          Control* container = nullptr);
    void visit(PropertyVisitor& visitor) const override;

    Property<bool> Border;
    bool const Filled;
};

/// Ticks as long as its window is shown.
class Timer : public Control {
  public:
    Timer(Form& form, std::string_view name, int milliseconds);

    int const Interval;  // milliseconds
    std::function<void()> on_tick;
};

/// An entry of the menu bar; an entry whose container is null opens a menu of its own.
class MenuEntry : public Control {
  public:
    MenuEntry(Form& form, std::string_view name, std::string_view caption,
              Control* menu = nullptr);
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> Caption;
    Property<bool> Checked;
};

class MenuSeparator : public Control {
  public:
    MenuSeparator(Form& form, std::string_view name, Control& menu);
};

}  // namespace navarun::screen
