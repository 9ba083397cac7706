// Requests, and how each is answered.
#include "tools/pilote/pilot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

#include "core/text.h"
#include "shell/names.h"

namespace navarun::pilot {

namespace {

// A request that says nothing the pilot understands.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A name that nothing bears.
class UnknownName : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

Json error(std::string_view kind, std::string_view text) {
    return {{"error", kind}, {"text", text}};
}

Json const& member(Json const& request, char const* name) {
    auto const found = request.find(name);
    if (found == request.end()) throw UsageError{std::string{"il manque "} + name};
    return *found;
}

std::string string_of(Json const& request, char const* name) {
    Json const& value = member(request, name);
    if (!value.is_string()) throw UsageError{std::string{name} + " : un texte est attendu"};
    return value.get<std::string>();
}

double number_of(Json const& value, char const* name) {
    if (!value.is_number()) throw UsageError{std::string{name} + " : un nombre est attendu"};
    return value.get<double>();
}

int integer_of(Json const& value, char const* name) {
    double const number = number_of(value, name);
    if (number != std::floor(number) || std::abs(number) > std::numeric_limits<int>::max()) {
        throw UsageError{std::string{name} + " : un nombre entier est attendu"};
    }
    return static_cast<int>(number);
}

Json to_json(NamedValue const& value) {
    struct Writer {
        Json operator()(std::string const& text) const { return text; }
        Json operator()(bool truth) const { return truth; }
        Json operator()(int number) const { return number; }
        Json operator()(double number) const { return number; }
        Json operator()(screen::Colour colour) const { return screen::to_text(colour); }
        Json operator()(std::vector<std::string> const& list) const { return list; }
        Json operator()(std::vector<screen::DrawnLine> const& lines) const {
            Json drawing = Json::array();
            for (auto const& line : lines) {
                drawing.push_back({line.x1, line.y1, line.x2, line.y2, line.width,
                                   screen::to_text(line.colour)});
            }
            return drawing;
        }
    };
    return std::visit(Writer{}, value);
}

// Requests inside a wait may hold such requests in turn; nobody means more than this.
constexpr int greatest_depth = 100;

// The object of a line; a discarded value where it is none, as what is nested without measure.
Json parsed(std::string const& line) {
    // The parser would take this character for the end of the text.
    if (line.find('\0') != std::string::npos) return Json::value_t::discarded;
    bool too_deep = false;
    auto const watch_depth = [&](int depth, Json::parse_event_t, Json&) {
        too_deep = too_deep || depth > greatest_depth;
        return !too_deep;
    };
    Json request = Json::parse(line, watch_depth, /*allow_exceptions=*/false);
    if (too_deep) return Json::value_t::discarded;
    return request;
}

// "HH:MM:SS" in seconds since midnight; negative for anything else.
double read_time(std::string_view text) {
    auto const digit = [&](std::size_t i) { return text[i] >= '0' && text[i] <= '9'; };
    if (text.size() != 8 || text[2] != ':' || text[5] != ':') return -1;
    for (std::size_t const i : std::array<std::size_t, 6>{0, 1, 3, 4, 6, 7}) {
        if (!digit(i)) return -1;
    }
    int const hours = text::number_of(text.substr(0, 2));
    int const minutes = text::number_of(text.substr(3, 2));
    int const seconds = text::number_of(text.substr(6, 2));
    if (hours > 23 || minutes > 59 || seconds > 59) return -1;
    return hours * 3600 + minutes * 60 + seconds;
}

screen::MouseEvent mouse_event_of(std::string const& name) {
    if (name == "down") return screen::MouseEvent::down;
    if (name == "move") return screen::MouseEvent::move;
    if (name == "up") return screen::MouseEvent::up;
    throw UsageError{name};
}

Json const ok{{"ok", true}};

}  // namespace

struct Pilot::Operation {
    std::string_view name;
    Json (Pilot::*perform)(Json const&);
    bool before_load = false;
};

std::vector<Pilot::Operation> const& Pilot::operations() {
    static std::vector<Operation> const table{
        {"clock", &Pilot::clock, true},
        {"answer", &Pilot::queue_answer, true},
        {"load", &Pilot::load, true},
        {"during-pause", &Pilot::during_pause},
        {"get", &Pilot::get},
        {"dump", &Pilot::dump},
        {"effects", &Pilot::effects},
        {"pages", &Pilot::pages},
        {"focus", &Pilot::focus},
        {"type", &Pilot::type},
        {"set", &Pilot::set},
        {"drag", &Pilot::drag},
        {"choose", &Pilot::choose},
        {"click", &Pilot::click},
        {"dblclick", &Pilot::double_click},
        {"hover", &Pilot::hover},
        {"key", &Pilot::key},
        {"mouse", &Pilot::mouse},
        {"drop", &Pilot::drop},
        {"close", &Pilot::close},
    };
    return table;
}

Pilot::Pilot(std::filesystem::path application_folder)
    : m_program{m_platform, std::move(application_folder)} {
    m_platform.set_user(m_program.user);
    m_program.form1.Picture2.on_page = [this](screen::Page const& page) {
        m_platform.record_page("preview", page);
    };
    m_platform.set_during_wait([this] { run_requests_during_wait(); });
}

std::string Pilot::answer_line(std::string const& line) {
    m_during = Json::array();
    Json result;
    try {
        result = answer(parsed(line));
    } catch (ProgramEnded const&) {
        m_exit_status = 0;
        result = {{"ended", true}};
    } catch (FatalError const& fatal) {
        m_exit_status = 1;
        result = error("fatal", fatal.what());
    }
    if (!m_during.empty()) result["during"] = m_during;
    if (m_exit_status) result["effects"] = m_platform.take_effects();
    m_program.screen.take_changed();  // nobody shows them here
    return result.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// What ends the program is thrown on.
Json Pilot::answer(Json const& request) {
    try {
        return perform(request);
    } catch (UsageError const& usage) {
        return error("usage", usage.what());
    } catch (screen::BadValue const& usage) {
        return error("usage", usage.what());
    } catch (UnknownName const& unknown) {
        return error("unknown", unknown.what());
    } catch (screen::UnknownEntry const& unknown) {
        return error("unknown", unknown.what());
    } catch (screen::Refused const& refused) {
        return error("refused", refused.what());
    }
}

Json Pilot::perform(Json const& request) {
    if (!request.is_object()) throw UsageError{"une demande est un objet"};
    std::string const name = string_of(request, "op");
    auto const operation = std::ranges::find(operations(), name, &Operation::name);
    if (operation == operations().end()) throw UsageError{"demande inconnue : " + name};
    if (!operation->before_load && !m_loaded) throw UsageError{name + " : pas avant load"};
    return (this->*operation->perform)(request);
}

void Pilot::run_requests_during_wait() {
    for (Json const& request : std::exchange(m_for_next_wait, {})) {
        // What the nested request answers stands before what its own wait may have noted.
        auto const place = m_during.size();
        m_during.push_back(nullptr);
        try {
            m_during[place] = answer(request);
        } catch (ProgramEnded const&) {
            m_during[place] = {{"ended", true}};
            throw;
        } catch (FatalError const& fatal) {
            m_during[place] = error("fatal", fatal.what());
            throw;
        }
    }
}

screen::Control& Pilot::control_of(Json const& request) {
    std::string const name = string_of(request, "control");
    screen::Control* const control = find_control(m_program, name);
    if (control == nullptr) throw UnknownName{name};
    return *control;
}

Json Pilot::clock(Json const& request) {
    auto const date = read_date(string_of(request, "date"));
    double const seconds = read_time(string_of(request, "time"));
    if (!date || seconds < 0) throw UsageError{"clock : jj/mm/aaaa et hh:mm:ss"};
    m_platform.set_clock(*date, seconds);
    m_clock_set = true;
    if (m_loaded) m_program.event([&](screen::User&) { m_program.screen.tick_timers(); });
    return ok;
}

Json Pilot::load(Json const&) {
    if (m_loaded || !m_clock_set) throw UsageError{"load : une fois, après clock"};
    m_loaded = true;
    m_program.start();
    return ok;
}

Json Pilot::during_pause(Json const& request) {
    Json const& requests = member(request, "requests");
    if (!requests.is_array()) throw UsageError{"requests : une liste est attendue"};
    m_for_next_wait.assign(requests.begin(), requests.end());
    return ok;
}

Json Pilot::queue_answer(Json const& request) {
    int const value = integer_of(member(request, "value"), "value");
    if (value != 1 && value != 2) throw UsageError{"value : 1 ou 2"};
    m_platform.queue_answer(static_cast<Answer>(value));
    return ok;
}

Json Pilot::get(Json const& request) {
    Json const& names = member(request, "names");
    if (!names.is_array()) throw UsageError{"names : une liste est attendue"};
    Json values = Json::object();
    for (Json const& entry : names) {
        if (!entry.is_string()) throw UsageError{"names : des textes sont attendus"};
        auto const name = entry.get<std::string>();
        auto const value = find_value(m_program, name);
        if (!value) throw UnknownName{name};
        values[name] = to_json(*value);
    }
    return {{"values", values}};
}

Json Pilot::dump(Json const& request) {
    std::string const name = string_of(request, "form");
    auto const* const form = m_program.screen.find_form(name);
    if (form == nullptr) throw UnknownName{name};
    Json controls = Json::object();
    for (auto const* control : form->controls()) {
        Json& properties = controls[name_of(*control)] = Json::object();
        for (auto const& [property, value] : properties_of(*control)) {
            properties[property] = to_json(value);
        }
    }
    return {{"controls", controls}};
}

Json Pilot::effects(Json const&) { return {{"effects", m_platform.take_effects()}}; }

Json Pilot::pages(Json const&) { return {{"pages", m_platform.take_pages()}}; }

Json Pilot::focus(Json const& request) {
    auto& control = control_of(request);
    m_program.event([&](screen::User& user) { user.focus(control); });
    return ok;
}

Json Pilot::type(Json const& request) {
    auto& control = control_of(request);
    std::string const text = string_of(request, "text");
    m_program.event([&](screen::User& user) { user.type(control, text); });
    return ok;
}

Json Pilot::set(Json const& request) {
    auto& control = control_of(request);
    Json const& value = member(request, "value");
    if (auto* const bar = dynamic_cast<screen::ScrollBar*>(&control)) {
        int const position = integer_of(value, "value");
        m_program.event([&](screen::User& user) { user.set_position(*bar, position); });
        return ok;
    }
    if (auto* const option = dynamic_cast<screen::OptionButton*>(&control)) {
        if (!value.is_boolean()) throw UsageError{"value : true ou false est attendu"};
        bool const chosen = value.get<bool>();
        m_program.event([&](screen::User& user) { user.set_option(*option, chosen); });
        return ok;
    }
    if (auto* const box = dynamic_cast<screen::CheckBox*>(&control)) {
        int const mark = integer_of(value, "value");
        if (mark != 0 && mark != 1) throw UsageError{"value : 0 ou 1"};
        m_program.event([&](screen::User& user) { user.set_check(*box, mark); });
        return ok;
    }
    auto* const entry = dynamic_cast<screen::EntryControl*>(&control);
    if (entry == nullptr) throw screen::Refused{control.full_name() + " ne s'écrit pas"};
    std::string const text = string_of(request, "value");
    m_program.event([&](screen::User& user) { user.set_text(*entry, text); });
    return ok;
}

Json Pilot::drag(Json const& request) {
    auto* const bar = dynamic_cast<screen::ScrollBar*>(&control_of(request));
    if (bar == nullptr) {
        throw screen::Refused{string_of(request, "control") + " n'a pas de curseur"};
    }
    int const position = integer_of(member(request, "value"), "value");
    m_program.event([&](screen::User& user) { user.drag(*bar, position); });
    return ok;
}

Json Pilot::choose(Json const& request) {
    auto& control = control_of(request);
    if (request.contains("index")) {
        int const place = integer_of(request["index"], "index");
        m_program.event([&](screen::User& user) { user.choose(control, place); });
        return ok;
    }
    std::string const item = string_of(request, "item");
    m_program.event([&](screen::User& user) { user.choose(control, item); });
    return ok;
}

Json Pilot::click(Json const& request) {
    auto& control = control_of(request);
    m_program.event([&](screen::User& user) { user.click(control); });
    return ok;
}

Json Pilot::double_click(Json const& request) {
    auto& control = control_of(request);
    m_program.event([&](screen::User& user) { user.double_click(control); });
    return ok;
}

Json Pilot::hover(Json const& request) {
    auto& control = control_of(request);
    m_program.event([&](screen::User& user) { user.hover(control); });
    return ok;
}

Json Pilot::key(Json const& request) {
    auto& control = control_of(request);
    int const code = integer_of(member(request, "code"), "code");
    m_program.event([&](screen::User& user) { user.key(control, code); });
    return ok;
}

Json Pilot::mouse(Json const& request) {
    auto& control = control_of(request);
    std::string const told = string_of(request, "event");
    screen::Mouse const where{
        .button = integer_of(member(request, "button"), "button"),
        .x = number_of(member(request, "x"), "x"),
        .y = number_of(member(request, "y"), "y"),
    };
    auto const event = mouse_event_of(told);
    m_program.event([&](screen::User& user) { user.mouse(control, event, where); });
    return ok;
}

Json Pilot::drop(Json const& request) {
    auto& control = control_of(request);
    if (request.contains("file")) {
        std::string const file = string_of(request, "file");
        m_program.event([&](screen::User& user) { user.drop_file(control, file); });
    } else {
        m_program.event([&](screen::User& user) { user.drop(control); });
    }
    return ok;
}

Json Pilot::close(Json const& request) {
    std::string const name = string_of(request, "form");
    auto* const form = m_program.screen.find_form(name);
    if (form == nullptr) throw UnknownName{name};
    m_program.event([&](screen::User& user) { user.close(*form); });
    return ok;
}

}  // namespace navarun::pilot
