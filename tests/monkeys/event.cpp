// Events as requests.
#include "tests/monkeys/event.h"

namespace navarun::monkeys {

nlohmann::ordered_json as_request(Event const& event) {
    using Json = nlohmann::ordered_json;
    auto const on_control = [&](char const* op) {
        return Json{{"op", op}, {"control", event.control}};
    };
    auto const with = [&](char const* op, char const* name, Json value) {
        Json request = on_control(op);
        request[name] = std::move(value);
        return request;
    };
    switch (event.act) {
        case Act::clock:
            return {{"op", "clock"}, {"date", event.control}, {"time", event.text}};
        case Act::answer:
            return {{"op", "answer"}, {"value", event.number}};
        case Act::during_pause: {
            Json requests = Json::array();
            for (auto const& inner : event.inside) requests.push_back(as_request(inner));
            return {{"op", "during-pause"}, {"requests", requests}};
        }
        case Act::focus:
            return on_control("focus");
        case Act::type:
            return with("type", "text", event.text);
        case Act::set_text:
            return with("set", "value", event.text);
        case Act::set_number:
            return with("set", "value", event.number);
        case Act::set_truth:
            return with("set", "value", event.number != 0);
        case Act::drag:
            return with("drag", "value", event.number);
        case Act::choose:
            return with("choose", "index", event.number);
        case Act::click:
            return on_control("click");
        case Act::double_click:
            return on_control("dblclick");
        case Act::hover:
            return on_control("hover");
        case Act::key:
            return with("key", "code", event.number);
        case Act::mouse: {
            Json request = with("mouse", "event", event.text);
            request["button"] = event.number;
            request["x"] = event.x;
            request["y"] = event.y;
            return request;
        }
        case Act::drop:
            return on_control("drop");
        case Act::drop_file:
            return with("drop", "file", event.text);
        case Act::close:
            return {{"op", "close"}, {"form", event.control}};
    }
    return nullptr;
}

}  // namespace navarun::monkeys
