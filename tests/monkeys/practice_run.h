// A practitioner's folder and the program at work on it, one run after the other: a fatal error
// or the user's leaving ends a run, and the next event begins the next.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "shell/program.h"
#include "tests/monkeys/event.h"
#include "tools/pilote/scripted_platform.h"

namespace navarun::monkeys {

/// Where every run stands at its start.
inline constexpr char const* first_date = "21/11/2026";
inline constexpr char const* first_time = "10:15:00";

/// What became of an event.
struct Outcome {
    enum class Kind : std::uint8_t {
        done,
        refused,  // no user could do it
        ended,    // the program ended by its own doing
        fatal,
        broken,  // anything else was thrown
    };
    Kind kind = Kind::done;
    std::string text{};  // of what was thrown
};

/// Puts the files of a practice at work into an empty folder: records good and bad, portraits,
/// and below "depot" what is dropped on the window.
void prepare(std::filesystem::path const& folder);

/// REQUIRES that the process stands in the folder: the files that are dropped are named from
/// there.
class PracticeRun {
  public:
    /// Empties the folder and prepares it.
    explicit PracticeRun(std::filesystem::path folder);

    /// Lets the event in, after a start where no program runs.
    Outcome perform(Event const& event);

    /// Null before the first event and after the end of a run.
    Program* program() { return m_run ? &m_run->program : nullptr; }
    /// What reached the outside by the last event.
    pilot::Json const& effects() const { return m_effects; }
    /// Whether the last event was the first of its run.
    bool began() const { return m_began; }
    /// Whether something was printed from the menu while the preview was open: it hides the
    /// page and leaves the options.
    bool printed_from_menu() const { return m_printed_from_menu; }
    std::filesystem::path const& folder() const { return m_folder; }

  private:
    struct Run {
        explicit Run(std::filesystem::path const& folder) : program{platform, folder} {}
        pilot::ScriptedPlatform platform;
        Program program;
        std::vector<Event> for_next_pause;
    };

    void start();
    void let_in(Event const& event);
    void act(Event const& event);
    void act_during_pause();

    std::filesystem::path m_folder;
    std::unique_ptr<Run> m_run;
    pilot::Json m_effects = pilot::Json::array();
    bool m_began = false;
    bool m_printed_from_menu = false;
};

}  // namespace navarun::monkeys
