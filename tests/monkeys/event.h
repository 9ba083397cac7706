// One act of the random user, as the pilot takes it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace navarun::monkeys {

enum class Act : std::uint8_t {
    clock,
    answer,
    during_pause,
    focus,
    type,
    set_text,
    set_number,
    set_truth,
    drag,
    choose,
    click,
    double_click,
    hover,
    key,
    mouse,
    drop,
    drop_file,
    close,
};

struct Event {
    Act act = Act::click;
    std::string control{};  // or a window, for close; a date, for clock
    std::string text{};     // what is typed, the file, the time, the event of the mouse
    int number = 0;         // value, place, key code, button, answer
    double x = 0;
    double y = 0;
    std::vector<Event> inside{};  // what is done during the next pause
};

/// The request that makes the pilot do the same.
nlohmann::ordered_json as_request(Event const& event);

}  // namespace navarun::monkeys
