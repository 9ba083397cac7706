// What the random user does next.
#include "tests/monkeys/monkey.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "core/text.h"
#include "shell/names.h"

namespace navarun::monkeys {

namespace {

// Each would end the run or hide most of the window: rarely enough that runs last.
bool is_rare(screen::Control const& control) {
    return control.name() == "MnuQuitter" || control.name() == "Form1";
}

// The members of an array count as one control, so that the age chooser with its hundred labels
// is not all that is ever clicked.
std::vector<screen::Control const*> heads_of(screen::Form const& form) {
    std::vector<screen::Control const*> heads;
    for (auto const* control : form.controls()) {
        if (heads.empty() || heads.back()->name() != control->name()) heads.push_back(control);
    }
    return heads;
}

}  // namespace

std::string Monkey::digits() {
    static constexpr std::string_view usual[]{"17", "05", "19",       "62",       "31",
                                              "30", "29", "02",       "28",       "00",
                                              "99", "16", "17051962", "29022000", "31121699"};
    if (!once_in(3)) return std::string{one_of(usual)};
    std::string typed;
    for (int i = below(9); i >= 0; --i) typed += static_cast<char>('0' + below(10));
    return typed;
}

std::string Monkey::text() {
    static constexpr std::string_view usual[]{"Zoe",
                                              "Dupont",
                                              "Jean-Pierre",
                                              "élodie",
                                              "ŁUKASZ",
                                              "A. B",
                                              "de la Tour",
                                              "www.a.fr",
                                              "une note\r\n",
                                              "17051962",
                                              "Œuvre ÿ",
                                              "x",
                                              "Martin",
                                              "Luc",
                                              "zoe.gif",
                                              "Ancien",
                                              "été à Noël",
                                              "",
                                              "*",
                                              "Rien",
                                              "  ",
                                              "une deux trois quatre cinq six sept huit"};
    static constexpr std::string_view odd[]{"a/b",       "\"",     "..",  "con:", "\t",
                                            "日本",      "😀",      "\r",  "\x01", "C:\\a",
                                            "\"a\",\"b", "#TRUE#", "a,b", "\x7f", "<>"};
    if (once_in(150)) return std::string{one_of(odd)};
    if (once_in(400)) return std::string(static_cast<std::size_t>(below(3000)), 'n');
    if (once_in(4)) return digits();
    return std::string{one_of(usual)};
}

Event Monkey::clock() {
    Event event{.act = Act::clock};
    static constexpr std::string_view days[]{"29/02/2024", "01/01/2000", "31/12/2026",
                                             "28/02/2100", "01/01/0001", "31/12/9999"};
    if (once_in(4)) {
        event.control = one_of(days);
    } else {
        event.control = text::padded(1 + below(28), 2) + "/" + text::padded(1 + below(12), 2) +
                        "/" + text::padded(1600 + below(600), 4);
    }
    event.text = once_in(40) ? "23:59:59"
                             : text::padded(below(23), 2) + ":" + text::padded(below(60), 2) +
                                   ":" + text::padded(below(60), 2);
    return event;
}

screen::Control const* Monkey::pick(Program const& program) {
    auto const& forms = program.screen.forms();
    for (int tries = 0; tries < 60; ++tries) {
        // The main window as often as all the others together.
        auto const* const form =
            once_in(2) ? forms.front()
                       : forms[static_cast<std::size_t>(below(static_cast<int>(forms.size())))];
        auto const heads = heads_of(*form);
        auto const* control =
            heads[static_cast<std::size_t>(below(static_cast<int>(heads.size())))];
        if (control->index()) {
            std::vector<screen::Control const*> members;
            for (auto const* other : form->controls()) {
                if (other->name() == control->name()) members.push_back(other);
            }
            control =
                members[static_cast<std::size_t>(below(static_cast<int>(members.size())))];
        }
        if (is_rare(*control) && !once_in(25)) continue;
        if (control->can_be_used() || once_in(50)) return control;
    }
    return &program.form1.Text_prenom;
}

Event Monkey::on_entry(screen::Control const& control) {
    auto const& entry = dynamic_cast<screen::EntryControl const&>(control);
    auto const* const combo = dynamic_cast<screen::Combo const*>(&control);
    Event event{.control = name_of(control)};
    if (combo != nullptr && once_in(4)) {
        event.act = Act::choose;
        event.number = below(static_cast<int>(combo->entries().size()));
        return event;
    }
    event.act = once_in(3) ? Act::set_text : Act::type;
    event.text = entry.digits_only() && !once_in(20) ? digits() : text();
    return event;
}

Event Monkey::on_scroll_bar(screen::ScrollBar const& bar) {
    if (once_in(4)) {
        return {.act = Act::key, .control = name_of(bar), .number = once_in(3) ? 27 : 13};
    }
    Event event{.act = once_in(2) ? Act::drag : Act::set_number, .control = name_of(bar)};
    int const least = bar.Minimum;
    int const most = bar.Maximum;
    int const ends[]{least, most, bar.Value + 1, bar.Value - 1, least - 1, most + 1, 35, 36};
    event.number = once_in(2) ? one_of(ends) : least + below(most - least + 1);
    return event;
}

Event Monkey::on_list(screen::List const& list) {
    int const act = below(8);
    if (act < 3) {
        // One beyond the last is what no user could choose.
        return {
            .act = Act::choose, .control = name_of(list), .number = below(list.count() + 1)};
    }
    if (act < 4) return {.act = Act::double_click, .control = name_of(list)};
    if (act < 7) {
        static constexpr int codes[]{13, 17, 17, 46, 65};
        return {.act = Act::key, .control = name_of(list), .number = one_of(codes)};
    }
    return {.act = Act::mouse,
            .control = name_of(list),
            .text = "move",
            .x = static_cast<double>(below(2000)),
            .y = static_cast<double>(below(2000))};
}

Event Monkey::on_picture(screen::Control const& control) {
    static constexpr std::string_view events[]{"down", "move", "move", "up"};
    Event event{.act = Act::mouse, .control = name_of(control)};
    event.text = one_of(events);
    event.number = once_in(6) ? below(3) : 1;
    int const reach = once_in(300) ? 200'000 : 8000;
    int const before = reach / 10;
    event.x = below(reach) - before;
    event.y = below(reach) - before;
    return event;
}

Event Monkey::on_anything(screen::Control const& control) {
    static constexpr Act acts[]{Act::click,        Act::click, Act::click,
                                Act::click,        Act::hover, Act::focus,
                                Act::double_click, Act::key,   Act::drop};
    Event event{.act = one_of(acts), .control = name_of(control)};
    static constexpr int codes[]{13, 27, 32, 46, 17, 8, 65};
    if (event.act == Act::key) event.number = one_of(codes);
    return event;
}

Event Monkey::on(Program const& program, screen::Control const& control) {
    if (program.screen.dragged() != nullptr && once_in(2)) {
        static constexpr char const* targets[]{"Charge(1)", "Charge(2)", "Picture_KUNDALI",
                                               "Bouton_Image"};
        return {.act = Act::drop, .control = one_of(targets)};
    }
    if (dynamic_cast<screen::Form const*>(&control) != nullptr) {
        return {.act = Act::close, .control = name_of(control)};
    }
    if (once_in(4)) return on_anything(control);
    if (&control == &program.form1.Picture_PHOTO && once_in(3)) {
        static constexpr char const* files[]{"depot/zoe.gif", "depot/large.bmp",
                                             "depot/zoe.gif", "depot/texte.txt",
                                             "depot",         "depot/vide.jpg"};
        // What is no picture ends the run.
        bool const bad = once_in(40);
        return {.act = Act::drop_file,
                .control = name_of(control),
                .text = bad ? "depot/vide.jpg" : files[below(5)]};
    }
    switch (control.kind()) {
        case screen::Kind::text_field:
        case screen::Kind::text_area:
        case screen::Kind::combo:
            return on_entry(control);
        case screen::Kind::scroll_bar:
            return on_scroll_bar(dynamic_cast<screen::ScrollBar const&>(control));
        case screen::Kind::list:
        case screen::Kind::drop_down:
            return on_list(dynamic_cast<screen::List const&>(control));
        case screen::Kind::picture_box:
            return on_picture(control);
        case screen::Kind::check_box:
            return {.act = Act::set_number, .control = name_of(control), .number = below(2)};
        case screen::Kind::option_button:
            return {.act = Act::set_truth, .control = name_of(control), .number = below(2)};
        default:
            return on_anything(control);
    }
}

Event Monkey::next(Program const* program) {
    if (program == nullptr) return {.act = Act::click, .control = "Command2"};
    if (once_in(60)) return clock();
    if (once_in(25)) return {.act = Act::answer, .number = once_in(2) ? 1 : 2};
    if (once_in(40)) {
        Event event{.act = Act::during_pause};
        for (int i = below(4); i > 0; --i) {
            auto const* const control = pick(*program);
            event.inside.push_back(on(*program, *control));
        }
        return event;
    }
    if (once_in(20)) {
        auto const& forms = program->screen.forms();
        auto const* const form =
            forms[static_cast<std::size_t>(below(static_cast<int>(forms.size())))];
        if (form->Visible && (!is_rare(*form) || once_in(25))) {
            return {.act = Act::close, .control = name_of(*form)};
        }
    }
    return on(*program, *pick(*program));
}

}  // namespace navarun::monkeys
