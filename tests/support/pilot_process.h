// The pilot as a process of its own, driven through its pipes: it can be killed, it can meet a
// disk that fails, and it can run as somebody else.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

#include "tests/support/visit.h"

namespace navarun::test {

/// Variables by their names.
using Environment = std::vector<std::pair<std::string, std::string>>;

/// Who runs the process. A test that itself runs with all rights would be refused no file; the
/// one without rights then stands for the ordinary user.
enum class RunBy : std::uint8_t { tester, user_without_rights };

class PilotProcess {
  public:
    /// Starts it on a folder, with these variables over the test's own.
    explicit PilotProcess(std::filesystem::path const& folder,
                          Environment const& environment = {}, RunBy run_by = RunBy::tester);
    ~PilotProcess();
    PilotProcess(PilotProcess const&) = delete;
    PilotProcess& operator=(PilotProcess const&) = delete;

    /// Sends a request and waits for its answer; null, with the test failed, where none comes.
    Json ask(Json const& request);
    /// Sets the clock and starts the program.
    Json load();

    /// Sends a line without waiting. False where the process no longer listens.
    bool send(std::string const& line);
    /// Waits for so many answers to what was sent; comes back sooner where the process has
    /// ended. May be called by another thread while send() waits.
    void wait_for_answers(std::size_t count);

    /// Kills it as a power cut would: nothing in it runs any more. May be called by another
    /// thread while send() waits.
    void kill();
    /// Closes its input and waits for its end.
    /// @return the exit status, or minus the number of the signal that ended it.
    int end();

  private:
    /// Adds what the process has written. False where it has ended; one that writes nothing for
    /// longer than anything takes is ended, and the test has failed.
    bool read_more();
    /// The next answer; nothing where none comes any more.
    std::optional<std::string> next_line();
    void close_input();

    // Where the user without rights finds the program, whatever folder it was built in.
    std::optional<TemporaryFolder> m_program_folder;
    pid_t m_process = -1;
    int m_input = -1;   // of the process: written here
    int m_output = -1;  // of the process: read here
    std::string m_read;
};

/// The path of a library for LD_PRELOAD: a link in `folder`, for the loader parts what stands
/// there at blanks, and the library may have been built below a folder with some.
std::string preloadable(std::filesystem::path const& library, TemporaryFolder const& folder);

}  // namespace navarun::test
