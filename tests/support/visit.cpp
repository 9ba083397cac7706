// Acts and lookups of a visit.
#include "tests/support/visit.h"

#include <atomic>

#include <gtest/gtest.h>
#include <unistd.h>

namespace navarun::test {

TemporaryFolder::TemporaryFolder() {
    static std::atomic<int> number{0};
    std::string const name = "navarun-test-" + std::to_string(getpid()) + "-";
    // One that is there already was left by a killed run: numbers of processes come again.
    do {
        m_path = std::filesystem::temp_directory_path() / (name + std::to_string(number++));
    } while (!std::filesystem::create_directory(m_path));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

Visit::Visit(std::string_view today, std::string_view time) : m_pilot{m_folder.path()} {
    if (today.empty()) return;
    clock(today, time);
    act({{"op", "load"}});
}

Json Visit::ask_line(std::string const& line) { return Json::parse(m_pilot.answer_line(line)); }

Json Visit::ask(Json const& request) { return ask_line(request.dump()); }

void Visit::act(Json const& request) {
    Json const answer = ask(request);
    ASSERT_TRUE(answer.contains("ok")) << request << " is answered " << answer;
}

void Visit::focus(std::string_view control) { act({{"op", "focus"}, {"control", control}}); }

void Visit::type(std::string_view control, std::string_view text) {
    act({{"op", "type"}, {"control", control}, {"text", text}});
}

void Visit::set(std::string_view control, Json const& value) {
    act({{"op", "set"}, {"control", control}, {"value", value}});
}

void Visit::drag(std::string_view control, int value) {
    act({{"op", "drag"}, {"control", control}, {"value", value}});
}

void Visit::choose(std::string_view control, std::string_view item) {
    act({{"op", "choose"}, {"control", control}, {"item", item}});
}

void Visit::click(std::string_view control) { act({{"op", "click"}, {"control", control}}); }

void Visit::double_click(std::string_view control) {
    act({{"op", "dblclick"}, {"control", control}});
}

void Visit::hover(std::string_view control) { act({{"op", "hover"}, {"control", control}}); }

void Visit::key(std::string_view control, int code) {
    act({{"op", "key"}, {"control", control}, {"code", code}});
}

void Visit::clock(std::string_view date, std::string_view time) {
    act({{"op", "clock"}, {"date", date}, {"time", time}});
}

void Visit::generate_for(std::string_view date_digits) {
    type("Combo_jourNaiss", date_digits);
    click("Command2");
}

void Visit::generate_at(int age) {
    set("HScroll_age", age);
    click("Command2");
}

Json Visit::value(std::string_view name) {
    Json const answer = ask({{"op", "get"}, {"names", Json::array({name})}});
    if (!answer.contains("values")) {
        ADD_FAILURE() << name << " is answered " << answer;
        return nullptr;
    }
    return answer["values"][std::string{name}];
}

std::string Visit::text(std::string_view name) {
    Json const found = value(name);
    return found.is_string() ? found.get<std::string>() : found.dump();
}

int Visit::number(std::string_view name) {
    Json const found = value(name);
    if (!found.is_number()) {
        ADD_FAILURE() << name << " is " << found;
        return 0;
    }
    return found.get<int>();
}

bool Visit::truth(std::string_view name) {
    Json const found = value(name);
    if (!found.is_boolean()) {
        ADD_FAILURE() << name << " is " << found;
        return false;
    }
    return found.get<bool>();
}

std::vector<std::string> Visit::cells(std::string_view array, std::string_view property) {
    std::vector<std::string> values;
    for (int i = 1; i <= 12; ++i) {
        std::string name{array};
        name.append("(").append(std::to_string(i)).append(").").append(property);
        values.push_back(text(name));
    }
    return values;
}

Json Visit::dump() { return ask({{"op", "dump"}, {"form", "Form1"}})["controls"]; }

Json Visit::effects() { return ask({{"op", "effects"}})["effects"]; }

}  // namespace navarun::test
