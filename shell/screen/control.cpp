// What the controls share, and the kinds that only show or are clicked.
#include "shell/screen/control.h"

#include "shell/screen/form.h"
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

Frame::Frame(Form& form, std::string_view name, Design const& design)
    : TextControl{form, nullptr, Kind::frame, name, {}, design},
      Caption{*this, std::string{design.text}},
      Border{*this, design.border} {}

void Frame::visit(PropertyVisitor& visitor) const {
    TextControl::visit(visitor);
    visitor.property("Caption", std::string_view{Caption.get()});
    visitor.property("Border", Border.get());
}

Shape::Shape(Form& form, std::string_view name, Design const& design, Control* container)
    : PlacedControl{form, container, Kind::shape, name, {}, design},
      Border{*this, design.border},
      Filled{design.opaque} {}

void Shape::visit(PropertyVisitor& visitor) const {
    PlacedControl::visit(visitor);
    visitor.property("Border", Border.get());
}

Timer::Timer(Form& form, std::string_view name, int milliseconds)
    : Control{form, nullptr, Kind::timer, name, {}, {}}, Interval{milliseconds} {}

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

}  // namespace navarun::screen
