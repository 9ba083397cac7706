// What the logic asks of the outside. The desktop answers it with a window and a clock; the
// pilot with a script and a clock that stands still.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/calendar.h"
#include "core/fatal_error.h"

namespace navarun {

/// The answers of a question box.
enum class Answer : std::uint8_t { ok = 1, cancel = 2 };

enum class BoxButtons : std::uint8_t { ok, ok_cancel };

class Platform {
  public:
    virtual ~Platform() = default;

    /// Today, by the clock of the desktop.
    virtual Date today() = 0;
    /// Seconds since midnight, by the same clock.
    virtual double seconds_since_midnight() = 0;

    /// Waits, letting pending events run meanwhile. Events may end the program: then this
    /// throws ProgramEnded, and what waits is abandoned.
    /// @param seconds        >= 0
    /// @param shown_message  the transient message that is on screen meanwhile; empty for none.
    virtual void wait(double seconds, std::string_view shown_message) = 0;

    /// Shows a box until the user answers it. A box that has only OK answers ok.
    virtual Answer box(std::string_view title, std::string_view text, BoxButtons buttons) = 0;

    /// Whether the user holds the key of that code down at this moment.
    virtual bool key_is_held(int code) = 0;
};

/// The program ends by its own doing: every window closes at once.
class ProgramEnded : public std::exception {
  public:
    char const* what() const noexcept override { return "le programme est terminé"; }
};

namespace key {
inline constexpr int enter = 13;
}  // namespace key

}  // namespace navarun
