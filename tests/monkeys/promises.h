// What the window promises whatever is done to it, and the errors that may end a run.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "tests/monkeys/practice_run.h"

namespace navarun::monkeys {

/// The first promise that the program breaks as it stands, in words; empty where it keeps all.
std::optional<std::string> broken_promise(PracticeRun& run, Outcome const& outcome);

/// An error that may end a run, and why it may.
struct ToldError {
    std::string_view attempted;  // how the report begins
    std::string_view reason;     // what stands in it
    std::string_view why;
};
std::span<ToldError const> told_errors();

}  // namespace navarun::monkeys
