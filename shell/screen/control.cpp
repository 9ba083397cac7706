// What the controls share, and what each kind does of its own.
#include "shell/screen/control.h"

#include <algorithm>

#include "core/text.h"
#include "shell/screen/screen.h"

namespace navarun::screen {

namespace detail {

void list_as_changed(Control& owner) { owner.form().screen().m_changed.push_back(&owner); }

}  // namespace detail

Control::Control(Form& form, Control* container, Kind kind, std::string_view name,
                 std::optional<int> index, Design const& design)
    : m_form{&form},
      m_container{container},
      m_kind{kind},
      m_name{name},
      m_index{index},
      Visible{*this, design.visible},
      Enabled{*this, true},
      Tag{*this, std::string{design.tag}},
      SpokenName{*this, {}} {
    if (kind != Kind::form) form.m_controls.push_back(this);
}

std::string Control::full_name() const {
    std::string name{m_name};
    if (m_index) name.append("(").append(std::to_string(*m_index)).append(")");
    return name;
}

bool Control::takes_focus() const {
    switch (m_kind) {
        case Kind::text_field:
        case Kind::text_area:
        case Kind::combo:
        case Kind::list:
        case Kind::button:
        case Kind::option_button:
        case Kind::check_box:
        case Kind::drop_down:
        case Kind::scroll_bar:
            return true;
        default:
            return false;
    }
}

bool Control::is_shown() const {
    for (Control const* control = this; control != nullptr; control = control->m_container) {
        if (!control->Visible) return false;
    }
    return true;
}

bool Control::can_be_used() const {
    if (!is_shown() || !m_form->Visible || !m_form->Enabled) return false;
    auto const* const modal = m_form->screen().modal_form();
    if (modal != nullptr && modal != m_form) return false;
    for (Control const* control = this; control != nullptr; control = control->m_container) {
        if (!control->Enabled) return false;
    }
    return true;
}

void Control::visit(PropertyVisitor& visitor) const {
    visitor.property("Visible", Visible.get());
    visitor.property("Enabled", Enabled.get());
    visitor.property("Tag", std::string_view{Tag.get()});
}

PlacedControl::PlacedControl(Form& form, Control* container, Kind kind, std::string_view name,
                             std::optional<int> index, Design const& design)
    : Control{form, container, kind, name, index, design},
      Left{*this, design.place.left},
      Top{*this, design.place.top},
      Width{*this, design.place.width},
      Height{*this, design.place.height},
      ToolTipText{*this, std::string{design.tooltip}},
      BackColor{*this, design.back},
      MouseIcon{*this, {}} {}

void PlacedControl::visit(PropertyVisitor& visitor) const {
    Control::visit(visitor);
    visitor.property("Left", Left.get());
    visitor.property("Top", Top.get());
    visitor.property("Width", Width.get());
    visitor.property("Height", Height.get());
    visitor.property("ToolTipText", std::string_view{ToolTipText.get()});
    visitor.property("BackColor", BackColor.get());
}

TextControl::TextControl(Form& form, Control* container, Kind kind, std::string_view name,
                         std::optional<int> index, Design const& design)
    : PlacedControl{form, container, kind, name, index, design},
      FontName{*this, std::string{design.font.name}},
      FontSize{*this, design.font.size},
      FontItalic{design.font.italic},
      Align{design.align},
      ForeColor{*this, design.fore},
      FontBold{*this, design.font.bold} {}

void TextControl::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("ForeColor", ForeColor.get());
    visitor.property("FontName", std::string_view{FontName.get()});
    visitor.property("FontSize", FontSize.get());
    visitor.property("FontBold", FontBold.get());
}

Label::Label(Form& form, std::string_view name, Design const& design, Control* container,
             std::optional<int> index)
    : TextControl{form, container, Kind::label, name, index, design},
      Caption{*this, std::string{design.text}},
      Border{*this, design.border},
      Opaque{*this, design.opaque} {}

void Label::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Border", Border.get());
    visitor.property("Opaque", Opaque.get());
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

List::List(Form& form, std::string_view name, Design const& design, Control* container,
           Kind kind)
    : TextControl{form, container, kind, name, {}, design}, ListIndex{*this} {}

DropDown::DropDown(Form& form, std::string_view name, Design const& design)
    : List{form, name, design, nullptr, Kind::drop_down} {}

void DropDown::visit(PropertyVisitor& visitor) const {
    List::visit(visitor);
    std::string const text = selected();
    visitor.property("Text", std::string_view{text});
}

void CheckValue::preset(int value) {
    m_value = value;
    detail::mark_changed(*m_owner);
}

CheckValue& CheckValue::operator=(int value) {
    int const mark = value != 0 ? 1 : 0;
    if (m_value == mark) return *this;
    m_value = mark;
    detail::mark_changed(*m_owner);
    if (m_owner->on_click) m_owner->on_click();
    return *this;
}

CheckBox::CheckBox(Form& form, std::string_view name, Design const& design, Control* container)
    : TextControl{form, container, Kind::check_box, name, {}, design},
      Caption{*this, std::string{design.text}},
      Value{*this} {}

void CheckBox::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Value", Value.get());
}

Timer::Timer(Form& form, std::string_view name, int milliseconds)
    : Control{form, nullptr, Kind::timer, name, {}, {}}, Interval{milliseconds} {}

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

ListPlace& ListPlace::operator=(int value) {
    // None needs no look at the entries, which may be many and not yet read.
    int const place = value < 0 || value >= m_owner->count() ? -1 : value;
    if (m_value != place) detail::mark_changed(*m_owner);
    m_value = place;
    if (place >= 0 && m_owner->on_click) m_owner->on_click();
    return *this;
}

void List::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("List", &entries());
    visitor.property("ListIndex", ListIndex.get());
}

Button::Button(Form& form, std::string_view name, Design const& design, Control* container,
               std::optional<int> index)
    : TextControl{form, container, Kind::button, name, index, design},
      Caption{*this, std::string{design.text}},
      Picture{*this, design.picture} {}

void Button::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Picture", &Picture.get());
}

Image::Image(Form& form, std::string_view name, Design const& design, Control* container,
             std::optional<int> index)
    : PlacedControl{form, container, Kind::image, name, index, design},
      Picture{*this, design.picture},
      Stretched{design.stretched} {}

void Image::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("Picture", &Picture.get());
}

PictureBox::PictureBox(Form& form, std::string_view name, Design const& design,
                       Control* container)
    : PlacedControl{form, container, Kind::picture_box, name, {}, design},
      Picture{*this, design.picture},
      Border{*this, design.border} {}

SurfacePicture& SurfacePicture::operator=(screen::Picture const& picture) {
    m_picture = picture;
    m_owner->m_persistent.clear();
    m_owner->m_rubber.clear();
    m_owner->m_painted.reset();
    detail::mark_changed(*m_owner);
    return *this;
}

void PictureBox::paint(PaintedFile file, std::string_view file_name) {
    Picture = screen::Picture{"file:" + std::string{file_name}};
    m_painted = std::move(file);
}

std::vector<DrawnLine> const& PictureBox::lines(Layer layer) const {
    return layer == Layer::persistent ? m_persistent : m_rubber;
}

void PictureBox::draw(Layer layer, DrawnLine const& line) {
    (layer == Layer::persistent ? m_persistent : m_rubber).push_back(line);
    detail::mark_changed(*this);
}

void PictureBox::clear_rubber() {
    if (m_rubber.empty()) return;
    m_rubber.clear();
    detail::mark_changed(*this);
}

void PictureBox::show_page(Page page) {
    m_page = std::make_shared<Page const>(std::move(page));
    detail::mark_changed(*this);
    if (on_page) on_page(*m_page);
}

void PictureBox::clear_page() {
    m_page.reset();
    detail::mark_changed(*this);
}

void PictureBox::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("Picture", &Picture.get());
    visitor.property("Border", Border.get());
    visitor.property("Drawing", &m_persistent);
}

Frame::Frame(Form& form, std::string_view name, Design const& design)
    : TextControl{form, nullptr, Kind::frame, name, {}, design},
      Caption{*this, std::string{design.text}},
      Border{*this, design.border} {}

void Frame::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Border", Border.get());
}

OptionButton::OptionButton(Form& form, std::string_view name, Design const& design,
                           Control* container, std::optional<int> index)
    : TextControl{form, container, Kind::option_button, name, index, design},
      Caption{*this, std::string{design.text}},
      Value{*this, false} {}

OptionValue& OptionValue::operator=(bool value) {
    if (m_value == value) return *this;
    m_value = value;
    detail::mark_changed(*m_owner);
    if (!value) return *this;
    for (auto* control : m_owner->form().controls()) {
        bool const same_group = control->kind() == Kind::option_button && control != m_owner &&
                                control->container() == m_owner->container();
        if (same_group) static_cast<OptionButton*>(control)->Value = false;
    }
    if (m_owner->on_click) m_owner->on_click();
    return *this;
}

void OptionButton::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Value", Value.get());
}

Shape::Shape(Form& form, std::string_view name, Design const& design, Control* container)
    : PlacedControl{form, container, Kind::shape, name, {}, design},
      Border{*this, design.border},
      Filled{design.opaque} {}

void Shape::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("Border", Border.get());
}

ScrollPosition& ScrollPosition::operator=(int value) {
    int const inside = std::clamp(value, m_owner->Minimum.get(), m_owner->Maximum.get());
    if (m_value == inside) return *this;
    m_value = inside;
    detail::mark_changed(*m_owner);
    if (m_owner->on_change) m_owner->on_change();
    return *this;
}

ScrollBar::ScrollBar(Form& form, std::string_view name, Design const& design)
    : PlacedControl{form, nullptr, Kind::scroll_bar, name, {}, design},
      Value{*this, design.minimum},
      Minimum{*this, design.minimum},
      Maximum{*this, design.maximum} {}

void ScrollBar::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("Value", Value.get());
}

void ScrollBar::drag(int value) {
    m_thumb = value;
    if (on_scroll) on_scroll();
    m_thumb.reset();
    Value = value;
}

MenuEntry::MenuEntry(Form& form, std::string_view name, std::string_view caption, Control* menu)
    : Control{form, menu, Kind::menu_entry, name, {}, {}},
      Caption{*this, std::string{caption}},
      Checked{*this, false} {}

void MenuEntry::visit(PropertyVisitor& visitor) const {
    Control::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Checked", Checked.get());
}

MenuSeparator::MenuSeparator(Form& form, std::string_view name, Control& menu)
    : Control{form, &menu, Kind::menu_separator, name, {}, {}} {}

Form::Form(Screen& screen_, std::string_view name, Design const& design)
    : Control{*this, nullptr, Kind::form, name, {}, design},
      Caption{*this, std::string{design.text}},
      BackColor{*this, design.back},
      Width{*this, design.place.width},
      Height{*this, design.place.height},
      Stacking{*this, screen::Stacking::normal},
      Opening{design.place},
      m_screen{&screen_} {
    screen_.m_forms.push_back(this);
}

void Form::open() {
    if (!std::exchange(m_loaded, true) && on_load) on_load();
    Visible = true;
}

void Form::hide() {
    Visible = false;
    // Nothing in a window that is gone has the keyboard.
    auto* const focused = m_screen->focus();
    if (focused != nullptr && &focused->form() == this) m_screen->drop_focus();
}

void Form::unload() {
    hide();
    m_loaded = false;
}

Control* Form::find(std::string_view name, std::optional<int> index) const {
    auto const found = std::ranges::find_if(m_controls, [&](Control const* control) {
        return control->index() == index && control->name() == name;
    });
    return found == m_controls.end() ? nullptr : *found;
}

void Form::visit(PropertyVisitor& visitor) const {
    Control::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("BackColor", BackColor.get());
    visitor.property("Width", Width.get());
    visitor.property("Height", Height.get());
}

}  // namespace navarun::screen
