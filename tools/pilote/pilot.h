// The program driven by requests: one JSON object in, one JSON object out.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "shell/program.h"
#include "tools/pilote/scripted_platform.h"

namespace navarun::pilot {

class Pilot {
  public:
    /// @param application_folder  real files are read and written below it.
    explicit Pilot(std::filesystem::path application_folder);

    /// Answers one line of input, whatever it holds.
    std::string answer_line(std::string const& line);

    /// Set once the program has ended: 0 by its own doing, 1 by a fatal error.
    std::optional<int> exit_status() const { return m_exit_status; }

    Program& program() { return m_program; }

  private:
    Json answer(Json const& request);
    Json perform(Json const& request);
    void run_requests_during_wait();

    Json clock(Json const& request);
    Json load(Json const& request);
    Json during_pause(Json const& request);
    Json queue_answer(Json const& request);
    Json get(Json const& request);
    Json dump(Json const& request);
    Json effects(Json const& request);
    Json pages(Json const& request);
    Json focus(Json const& request);
    Json type(Json const& request);
    Json set(Json const& request);
    Json drag(Json const& request);
    Json choose(Json const& request);
    Json click(Json const& request);
    Json double_click(Json const& request);
    Json hover(Json const& request);
    Json key(Json const& request);
    Json mouse(Json const& request);
    Json drop(Json const& request);
    Json close(Json const& request);

    struct Operation;
    static std::vector<Operation> const& operations();

    screen::Control& control_of(Json const& request);

    ScriptedPlatform m_platform;
    Program m_program;
    bool m_clock_set = false;
    bool m_loaded = false;
    std::vector<Json> m_for_next_wait;
    Json m_during = Json::array();
    std::optional<int> m_exit_status;
};

}  // namespace navarun::pilot
