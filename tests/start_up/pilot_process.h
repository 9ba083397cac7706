// The pilot as a process of its own: it can be killed, and it can run as somebody else.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <sys/types.h>

#include "tests/support/visit.h"

namespace navarun::test {

/// Who runs the process. A test that itself runs with all rights would be refused no file; the
/// one without rights then stands for the ordinary user.
enum class RunBy : std::uint8_t { tester, user_without_rights };

class PilotProcess {
  public:
    explicit PilotProcess(std::filesystem::path const& folder, RunBy run_by = RunBy::tester);
    ~PilotProcess();
    PilotProcess(PilotProcess const&) = delete;
    PilotProcess& operator=(PilotProcess const&) = delete;

    /// Sends one request and waits for its answer; null, with the test failed, where none comes
    /// in ten seconds.
    Json ask(Json const& request);
    /// Sets the clock and starts the program.
    Json load();

    /// Kills it as a power cut would: nothing in it runs any more.
    void kill();
    /// Closes its input and waits for its end.
    /// @return the exit status; empty where a signal ended it.
    std::optional<int> end();

  private:
    void close_input();

    // Where the user without rights finds the program, whatever folder it was built in.
    TemporaryFolder m_program_folder;
    pid_t m_process = -1;
    int m_input = -1;   // of the process: written here
    int m_output = -1;  // of the process: read here
    std::string m_read;
};

}  // namespace navarun::test
