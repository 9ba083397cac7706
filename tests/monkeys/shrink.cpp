// Delta debugging over a list of events.
#include "tests/monkeys/shrink.h"

#include <algorithm>
#include <cstddef>

namespace navarun::monkeys {

namespace {

using Script = std::vector<Event>;
using Shows = std::function<bool(Script const&)>;

template <typename T>
std::vector<T> without(std::vector<T> const& all, std::size_t from, std::size_t count) {
    std::vector<T> rest{all.begin(), all.begin() + static_cast<std::ptrdiff_t>(from)};
    auto const after = std::min(from + count, all.size());
    rest.insert(rest.end(), all.begin() + static_cast<std::ptrdiff_t>(after), all.end());
    return rest;
}

// Leaves out parts of half the length, a quarter and so on, the last events kept longest: it is
// the early ones that matter least.
Script without_needless_events(Script script, Shows const& shows) {
    for (std::size_t part = std::max<std::size_t>(script.size() / 2, 1);;) {
        bool shorter = false;
        for (std::size_t from = 0; from < script.size();) {
            Script tried = without(script, from, part);
            if (tried.size() < script.size() && !tried.empty() && shows(tried)) {
                script = std::move(tried);
                shorter = true;
            } else {
                from += part;
            }
        }
        if (part == 1 && !shorter) return script;
        if (part > 1) part = (part + 1) / 2;
    }
}

// Tries each simpler form of one event.
bool simplify(Script& script, std::size_t place, Shows const& shows) {
    auto const accept = [&](Event simpler) {
        Script tried = script;
        tried[place] = std::move(simpler);
        if (!shows(tried)) return false;
        script = std::move(tried);
        return true;
    };
    Event const event = script[place];
    for (std::size_t i = 0; i < event.inside.size(); ++i) {
        Event simpler = event;
        simpler.inside = without(event.inside, i, 1);
        if (accept(std::move(simpler))) return true;
    }
    bool const is_text = event.act == Act::type || event.act == Act::set_text;
    // ASCII alone, so that no character is cut.
    bool const ascii = std::ranges::all_of(
        event.text, [](char c) { return static_cast<unsigned char>(c) < 128; });
    if (!is_text || !ascii || event.text.size() < 2) return false;
    auto const half = event.text.size() / 2;
    for (auto const& part :
         {event.text.substr(0, half), event.text.substr(half), event.text.substr(1),
          event.text.substr(0, event.text.size() - 1)}) {
        Event simpler = event;
        simpler.text = part;
        if (accept(std::move(simpler))) return true;
    }
    return false;
}

}  // namespace

Script shortest(Script script, Shows const& shows) {
    script = without_needless_events(std::move(script), shows);
    bool simpler = true;
    while (simpler) {
        simpler = false;
        for (std::size_t i = 0; i < script.size(); ++i) {
            while (simplify(script, i, shows)) simpler = true;
        }
        if (simpler) script = without_needless_events(std::move(script), shows);
    }
    return script;
}

}  // namespace navarun::monkeys
