// Pipes and the process behind them.
#include "tests/start_up/pilot_process.h"

#include <array>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace navarun::test {

namespace {

constexpr uid_t nobody = 65534;
constexpr int patience = 10'000;  // milliseconds
// Exit statuses that no program of the house uses.
constexpr int not_started = 120;

// Runs in the child, where only the system may be called.
[[noreturn]] void become(char const* program, char const* folder, RunBy run_by) {
    if (run_by == RunBy::user_without_rights && ::geteuid() == 0) {
        if (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0) {
            ::_exit(not_started);
        }
    }
    ::execl(program, program, folder, static_cast<char*>(nullptr));
    ::_exit(not_started);
}

}  // namespace

PilotProcess::PilotProcess(std::filesystem::path const& folder, RunBy run_by) {
    ::signal(SIGPIPE, SIG_IGN);
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    if (::pipe2(input.data(), O_CLOEXEC) != 0 || ::pipe2(output.data(), O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pipe";
        return;
    }
    std::filesystem::path const program = m_program_folder.path() / "pilote";
    std::filesystem::copy_file(PILOTE, program);
    std::string const program_text = program.string();
    std::string const folder_text = folder.string();
    m_process = ::fork();
    if (m_process == 0) {
        ::dup2(input[0], STDIN_FILENO);
        ::dup2(output[1], STDOUT_FILENO);
        become(program_text.c_str(), folder_text.c_str(), run_by);
    }
    ::close(input[0]);
    ::close(output[1]);
    m_input = input[1];
    m_output = output[0];
}

PilotProcess::~PilotProcess() {
    if (m_process > 0) kill();
    close_input();
    if (m_output >= 0) ::close(m_output);
}

Json PilotProcess::ask(Json const& request) {
    std::string const line = request.dump() + "\n";
    if (::write(m_input, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        ADD_FAILURE() << "the process does not take " << request;
        return nullptr;
    }
    while (m_read.find('\n') == std::string::npos) {
        pollfd ready{.fd = m_output, .events = POLLIN, .revents = 0};
        std::array<char, 4096> block{};
        ssize_t const count = ::poll(&ready, 1, patience) == 1
                                  ? ::read(m_output, block.data(), block.size())
                                  : -1;
        if (count <= 0) {
            ADD_FAILURE() << "no answer to " << request;
            return nullptr;
        }
        m_read.append(block.data(), static_cast<std::size_t>(count));
    }
    auto const end_of_line = m_read.find('\n');
    Json answer = Json::parse(m_read.substr(0, end_of_line));
    m_read.erase(0, end_of_line + 1);
    return answer;
}

Json PilotProcess::load() {
    ask({{"op", "clock"}, {"date", "21/11/2026"}, {"time", "10:15:00"}});
    return ask({{"op", "load"}});
}

void PilotProcess::kill() {
    ::kill(m_process, SIGKILL);
    int status = 0;
    ::waitpid(std::exchange(m_process, -1), &status, 0);
}

std::optional<int> PilotProcess::end() {
    close_input();
    // Its output closes with it; a process that hangs is killed by the destructor.
    while (true) {
        pollfd ready{.fd = m_output, .events = POLLIN, .revents = 0};
        std::array<char, 4096> block{};
        if (::poll(&ready, 1, patience) != 1) {
            ADD_FAILURE() << "the process hangs";
            return {};
        }
        if (::read(m_output, block.data(), block.size()) <= 0) break;
    }
    int status = 0;
    ::waitpid(std::exchange(m_process, -1), &status, 0);
    if (!WIFEXITED(status)) return {};
    EXPECT_NE(WEXITSTATUS(status), not_started) << "the pilot could not be started";
    return WEXITSTATUS(status);
}

void PilotProcess::close_input() {
    if (m_input >= 0) ::close(std::exchange(m_input, -1));
}

}  // namespace navarun::test
