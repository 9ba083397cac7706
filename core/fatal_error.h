// A failure that ends the run with a report.
#pragma once

#include <stdexcept>
#include <string>

namespace navarun {

/// Thrown by whatever cannot go on; caught in one place, where an event enters the logic.
class FatalError : public std::runtime_error {
  public:
    /// All in French, as the practitioner reads them.
    /// @param attempted  what was tried, a sentence
    /// @param reason     why it failed, a sentence
    FatalError(std::string const& attempted, std::string const& reason)
        : std::runtime_error{attempted + "\r\n" + reason} {}
};

}  // namespace navarun
