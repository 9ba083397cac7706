// What the logic asks of the outside. The desktop answers it with a window and a clock; the
// pilot with a script and a clock that stands still.
#pragma once

#include <cstdint>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/calendar.h"
#include "core/fatal_error.h"
#include "shell/screen/keys.h"
#include "shell/screen/page.h"

namespace navarun {

/// The answers of a question box.
enum class Answer : std::uint8_t { ok = 1, cancel = 2 };

enum class BoxButtons : std::uint8_t { ok, ok_cancel };

/// A program of the system, or this one once more.
enum class OutsideProgram : std::uint8_t { text_editor, calculator, navarun };

struct PictureSize {
    int width = 0;
    int height = 0;
};

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

    /// Hands a web address to the desktop's opener; what comes of it is not looked at.
    virtual void open(std::string_view target) = 0;
    /// Hands a file to the desktop's opener, likewise.
    /// @param shown_as  its path from the application folder on
    virtual void open_file(std::filesystem::path const& file, std::string_view shown_as) = 0;
    /// Whether the system has that program.
    virtual bool has_program(OutsideProgram wanted) = 0;
    /// Starts it; what comes of it is not looked at.
    virtual void start_program(OutsideProgram wanted) = 0;

    /// Whether there is a program that shows plain text.
    virtual bool has_text_viewer() = 0;
    /// Shows the content of a file in the plain text viewer. The text is taken over before this
    /// returns, so that the file may go at once.
    /// @param shown_as  its path from the application folder on
    virtual void view_text(std::filesystem::path const& file, std::string const& shown_as) = 0;

    /// The size of a picture file in pixels, once it is known that the file can be shown.
    /// Throws FatalError where it cannot.
    virtual PictureSize picture_size(std::filesystem::path const& file) = 0;

    /// The paper of the printer, in inches: of the one chosen in the printer dialog, before
    /// that of the desktop's own choice. A4 where there is none.
    virtual screen::PageSize printer_page() = 0;
    /// Lets the user choose the printer of the next document, or give it up.
    virtual Answer printer_dialog() = 0;
    /// Prints the pages as one document on the printer chosen last. Whether that succeeds is
    /// not told.
    virtual void print(std::vector<screen::Page> const& pages) = 0;

    /// Whether the user holds the key of that code down at this moment.
    /// @param code  as in `key`
    virtual bool key_is_held(int code) = 0;
};

/// The program ends by its own doing: every window closes at once.
class ProgramEnded : public std::exception {
  public:
    char const* what() const noexcept override { return "le programme est terminé"; }
};

}  // namespace navarun
