// The acts of a user.
#include "shell/screen/user.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "core/code_page.h"
#include "core/text.h"
#include "shell/screen/choice.h"
#include "shell/screen/entry.h"
#include "shell/screen/keys.h"
#include "shell/screen/list.h"

namespace navarun::screen {

namespace {

void require_usable(Control const& control) {
    if (!control.can_be_used()) {
        throw Refused{control.full_name() + " n'est pas visible ou pas permis"};
    }
}

[[noreturn]] void refuse_kind(Control const& control) {
    throw Refused{control.full_name() + " ne prend pas cela"};
}

// Keys that write nothing never enter a text; a line end does in a text of several lines.
bool is_text(EntryControl const& entry, char32_t character) {
    bool const line_end = character == U'\r' || character == U'\n';
    bool const is_control = character < U' ' || character == 0x7F;
    return !is_control || (line_end && entry.kind() == Kind::text_area);
}

// One line is what a field shows and what a file name holds: the line end that comes along when
// a name is copied from a page or a sheet is no part of it.
std::string in_one_line(std::string text) {
    auto const is_control = [](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
    };
    while (!text.empty() && is_control(text.back())) text.pop_back();
    std::ranges::replace_if(text, is_control, ' ');
    return text;
}

void fire(std::function<void()> const& event) {
    if (event) event();
}

}  // namespace

// Whatever she does but drop it lets go of what is dragged.
void User::begin_act(Control const& control) {
    m_screen->end_drag();
    require_usable(control);
}

void User::focus(Control& control) {
    begin_act(control);
    if (!control.takes_focus()) throw Refused{control.full_name() + " ne prend pas le focus"};
    m_screen->move_focus(control);
}

void User::touch(Control& control) {
    begin_act(control);
    if (control.takes_focus()) m_screen->move_focus(control);
}

void User::type(char32_t character) {
    Control* const control = m_screen->focus();
    if (control == nullptr) return;
    require_usable(*control);
    bool const swallowed = control->on_key_press && control->on_key_press(character);
    auto* const entry = dynamic_cast<EntryControl*>(control);
    if (swallowed || entry == nullptr || entry->read_only()) return;
    // A handler of KeyPress may have moved the focus or closed the field.
    if (m_screen->focus() != control || !entry->has_room() || !is_text(*entry, character))
        return;
    int const caret = entry->selection().start + 1;
    entry->edit(entry->with_typed(nearest_in_code_page(character)), caret);
}

void User::type(Control& control, std::string_view text) {
    auto const* const entry = dynamic_cast<EntryControl*>(&control);
    require_usable(control);
    if (entry != nullptr && entry->read_only()) refuse_kind(control);
    focus(control);
    for (char32_t const character : text::characters(text)) type(character);
}

bool User::press(EntryControl& control, char32_t character) {
    require_usable(control);
    return control.read_only() || (control.on_key_press && control.on_key_press(character));
}

void User::edit(EntryControl& control, std::string_view text, int caret) {
    begin_act(control);
    if (control.read_only()) refuse_kind(control);
    std::string taken = fitted_to_code_page(text);
    if (control.kind() != Kind::text_area) taken = in_one_line(std::move(taken));
    control.edit(std::move(taken), caret);
}

void User::set_text(EntryControl& control, std::string_view text) {
    begin_act(control);
    if (control.read_only()) refuse_kind(control);
    m_screen->move_focus(control);
    std::string taken = fitted_to_code_page(text);
    if (control.digits_only()) {
        std::erase_if(taken, [](char c) { return c < '0' || c > '9'; });
    }
    if (control.max_length() > 0) taken = text::first(taken, control.max_length());
    control.edit(std::move(taken));
}

void User::set_position(ScrollBar& control, int value) {
    begin_act(control);
    if (value < control.Minimum || value > control.Maximum) {
        throw BadValue{"valeur hors de l'étendue"};
    }
    m_screen->move_focus(control);
    control.Value = value;
}

void User::drag(ScrollBar& control, int value) {
    begin_act(control);
    if (value < control.Minimum || value > control.Maximum) {
        throw BadValue{"valeur hors de l'étendue"};
    }
    m_screen->move_focus(control);
    control.drag(value);
}

void User::set_option(OptionButton& control, bool chosen) {
    begin_act(control);
    m_screen->move_focus(control);
    control.Value = chosen;
}

void User::set_check(CheckBox& control, int mark) {
    begin_act(control);
    m_screen->move_focus(control);
    control.Value = mark;
}

void User::choose(Control& control, int entry) {
    begin_act(control);
    if (auto* const combo = dynamic_cast<Combo*>(&control)) {
        auto const& entries = combo->entries();
        if (entry < 0 || entry >= static_cast<int>(entries.size())) {
            throw UnknownEntry{std::to_string(entry)};
        }
        m_screen->move_focus(control);
        combo->edit(entries[static_cast<std::size_t>(entry)]);
        combo->select_all();
        fire(combo->on_click);
        return;
    }
    if (auto* const list = dynamic_cast<List*>(&control)) {
        if (entry < 0 || entry >= static_cast<int>(list->entries().size())) {
            throw UnknownEntry{std::to_string(entry)};
        }
        m_screen->move_focus(control);
        list->ListIndex = entry;
        return;
    }
    refuse_kind(control);
}

void User::choose(Control& control, std::string_view entry) {
    std::vector<std::string> const* entries = nullptr;
    if (auto* const combo = dynamic_cast<Combo*>(&control)) entries = &combo->entries();
    if (auto* const list = dynamic_cast<List*>(&control)) entries = &list->entries();
    begin_act(control);
    if (entries == nullptr) refuse_kind(control);
    auto const found = std::ranges::find(*entries, entry);
    if (found == entries->end()) throw UnknownEntry{std::string{entry}};
    choose(control, static_cast<int>(found - entries->begin()));
}

void User::click(Control& control) {
    touch(control);
    // A click in a date field offers its whole text to the next digit.
    switch (control.kind()) {
        case Kind::combo:  // Click of a combo is the choice of an entry.
            static_cast<Combo&>(control).select_all();
            break;
        case Kind::check_box: {
            auto& mark = static_cast<CheckBox&>(control).Value;
            mark = 1 - mark;  // fires Click
            break;
        }
        case Kind::option_button:
            static_cast<OptionButton&>(control).Value = true;  // fires Click where not chosen
            break;
        default:
            fire(control.on_click);
            break;
    }
}

void User::double_click(Control& control) {
    touch(control);
    fire(control.on_double_click);
}

void User::hover(Control& control) {
    require_usable(control);
    if (control.on_mouse_move) control.on_mouse_move({});
}

void User::key(Control& control, int code) {
    focus(control);
    struct Held {
        int& key;
        ~Held() { key = 0; }
    } const held{m_key_held};
    m_key_held = code;
    if (control.on_key_down) control.on_key_down(code);
    if (m_screen->focus() == &control && control.on_key_press) {
        control.on_key_press(static_cast<char32_t>(code));
    }
    press_button_of(control.form(), code);
}

void User::press_button_of(Form const& form, int code) {
    Button* const button = code == key::enter    ? form.default_button
                           : code == key::escape ? form.cancel_button
                                                 : nullptr;
    if (button != nullptr && button->can_be_used()) fire(button->on_click);
}

void User::drop(Control& control) {
    if (m_screen->dragged() == nullptr) throw Refused{"rien n'est tiré"};
    require_usable(control);
    fire(control.on_drag_over);
    if (m_screen->dragged() == nullptr)
        return;  // ended by the control that it was dragged over
    m_screen->end_drag();
    fire(control.on_drag_drop);
}

void User::drop_file(Control& control, std::string const& path) {
    begin_act(control);
    if (!control.on_file_drop) refuse_kind(control);
    control.on_file_drop(path);
}

void User::mouse(Control& control, MouseEvent event, Mouse const& where) {
    require_usable(control);
    auto const& handler = event == MouseEvent::down   ? control.on_mouse_down
                          : event == MouseEvent::move ? control.on_mouse_move
                                                      : control.on_mouse_up;
    if (handler) handler(where);
}

void User::close(Form& form) {
    m_screen->end_drag();
    if (!form.Visible) throw Refused{form.full_name() + " n'est pas ouverte"};
    auto const* const modal = m_screen->modal_form();
    if (modal != nullptr && modal != &form) {
        throw Refused{modal->full_name() + " est devant"};
    }
    fire(form.on_close);
}

}  // namespace navarun::screen
