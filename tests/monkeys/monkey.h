// The random user: does anything that the screen lets a user do, and now and then what it does
// not.
#pragma once

#include <cstdint>
#include <random>

#include "shell/program.h"
#include "tests/monkeys/event.h"

namespace navarun::monkeys {

class Monkey {
  public:
    explicit Monkey(std::uint64_t seed) : m_random{seed} {}

    /// The next event.
    /// @param program  the one that runs; null before a start.
    Event next(Program const* program);

  private:
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
    bool once_in(int times) { return below(times) == 0; }
    template <typename T, std::size_t n>
    T const& one_of(T const (&values)[n]) {
        return values[static_cast<std::size_t>(below(static_cast<int>(n)))];
    }

    Event on(Program const& program, screen::Control const& control);
    Event on_entry(screen::Control const& control);
    Event on_scroll_bar(screen::ScrollBar const& bar);
    Event on_list(screen::List const& list);
    Event on_picture(screen::Control const& control);
    Event on_anything(screen::Control const& control);
    Event clock();
    screen::Control const* pick(Program const& program);
    std::string text();
    std::string digits();

    std::mt19937_64 m_random;
};

}  // namespace navarun::monkeys
