// The controls of the screen model: named fields with text, colour and visibility, and the
// events that tie them to the operations. No toolkit stands here; one shows them from outside.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "shell/screen/colour.h"
#include "shell/screen/page.h"
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

/// Place in the container's own coordinates, in twips (15 to the pixel).
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct Font {
    std::string_view name = "MS Sans Serif";
    double size = 9.75;  // points
    bool bold = false;
    bool italic = false;
};

enum class Alignment : std::uint8_t { left, centre };

/// The design-time values of a control, written once where the control is declared.
struct Design {
    Place place{};
    std::string_view text{};
    Font font{};
    Colour fore = black;
    Colour back = white;
    bool opaque = false;
    bool border = false;
    Alignment align = Alignment::left;
    bool visible = true;
    std::string_view tooltip{};
    std::string_view tag{};
    Picture picture{};
    bool stretched = false;    // a picture fills its control
    bool read_only = false;    // a text that only the program writes
    bool digits_only = false;  // a date field: what is no digit never enters
    int max_length = 0;        // characters the user may enter; 0 for no limit
    int minimum = 0;           // scroll bars
    int maximum = 0;
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

/// Ticks as long as its window is shown.
class Timer : public Control {
  public:
    Timer(Form& form, std::string_view name, int milliseconds);

    int const Interval;  // milliseconds
    std::function<void()> on_tick;
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

/// The rubber lines vanish with the next clear; the persistent ones stay until the picture is
/// loaded again.
enum class Layer : std::uint8_t { persistent, rubber };

/// The picture of a box on which lines are drawn. Loading one wipes them, also where it is the
/// same picture.
class PictureBox;
class SurfacePicture {
  public:
    SurfacePicture(PictureBox& owner, Picture picture)
        : m_owner{&owner}, m_picture{std::move(picture)} {}
    SurfacePicture(SurfacePicture const&) = delete;
    SurfacePicture& operator=(SurfacePicture const&) = delete;

    screen::Picture const& get() const { return m_picture; }
    SurfacePicture& operator=(screen::Picture const& picture);

  private:
    PictureBox* m_owner;
    screen::Picture m_picture;
};

/// A picture file painted into a box, in pixels of the box.
struct PaintedFile {
    std::string path;
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(PaintedFile const&) const = default;
};

/// A picture on which other controls lie, and on which lines can be drawn.
class PictureBox : public PlacedControl {
  public:
    PictureBox(Form& form, std::string_view name, Design const& design,
               Control* container = nullptr);
    void visit(PropertyVisitor& visitor) const override;

    SurfacePicture Picture;
    Property<bool> Border;

    /// Shows a picture file in place of the picture; its name is the picture's from now on.
    void paint(PaintedFile file, std::string_view file_name);
    std::optional<PaintedFile> const& painted() const { return m_painted; }

    std::vector<DrawnLine> const& lines(Layer layer) const;
    void draw(Layer layer, DrawnLine const& line);
    void clear_rubber();
    /// Shows a page, its width filling that of the box.
    void show_page(Page page);
    void clear_page();
    /// The page shown; null is none.
    std::shared_ptr<Page const> const& page() const { return m_page; }
    /// Told of each page shown, for whoever keeps a record.
    std::function<void(Page const&)> on_page;
    /// The width of the lines to come, in pixels.
    int draw_width() const { return m_draw_width; }
    void set_draw_width(int pixels) { m_draw_width = pixels; }

  private:
    friend class SurfacePicture;
    std::vector<DrawnLine> m_persistent;
    std::vector<DrawnLine> m_rubber;
    std::optional<PaintedFile> m_painted;
    std::shared_ptr<Page const> m_page;
    int m_draw_width = 1;
};

class Frame : public TextControl {
  public:
    Frame(Form& form, std::string_view name, Design const& design);
    void visit(PropertyVisitor& visitor) const override;

    Property<std::string> Caption;
    Property<bool> Border;
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

/// A rectangle round or behind other controls.
class Shape : public PlacedControl {
  public:
    Shape(Form& form, std::string_view name, Design const& design,
          Control* container = nullptr);
    void visit(PropertyVisitor& visitor) const override;

    Property<bool> Border;
    bool const Filled;
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

/// Controls of one name, told apart by an index. Indexes may have gaps.
template <typename T>
class ControlArray {
  public:
    /// @param design_of  the design of the member of an index.
    template <typename DesignOf>
    ControlArray(Form& form, std::string_view name, std::vector<int> indexes,
                 DesignOf const& design_of, Control* container = nullptr)
        : m_indexes{std::move(indexes)} {
        for (int const index : m_indexes) {
            m_members.resize(static_cast<std::size_t>(index) + 1);
            m_members.back() =
                std::make_unique<T>(form, name, design_of(index), container, index);
        }
    }

    /// REQUIRES a member of that index; a missing one is a programming error.
    T& operator()(int index) { return *m_members.at(static_cast<std::size_t>(index)); }
    T const& operator()(int index) const {
        return *m_members.at(static_cast<std::size_t>(index));
    }
    std::vector<int> const& indexes() const { return m_indexes; }

  private:
    std::vector<int> m_indexes;  // ascending
    std::vector<std::unique_ptr<T>> m_members;
};

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
