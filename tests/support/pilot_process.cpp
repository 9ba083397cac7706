// Pipes and the process behind them.
#include "tests/support/pilot_process.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <stdexcept>
#include <string_view>
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
constexpr int patience = 60'000;  // milliseconds, which a broken program alone exhausts
// An exit status that no program of the house uses.
constexpr int not_started = 120;

// The test's own variables, but for those that `over` has; then these.
std::vector<std::string> variables(Environment const& over) {
    std::vector<std::string> all;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        std::string_view const own{*entry};
        bool const hidden = std::ranges::any_of(
            over, [&](auto const& variable) { return own.starts_with(variable.first + "="); });
        if (!hidden) all.emplace_back(own);
    }
    for (auto const& [name, value] : over) all.push_back(name + "=" + value);
    return all;
}

// Runs in the child, where only the system may be called.
[[noreturn]] void become(char const* program, char const* folder, char* const* environment,
                         RunBy run_by) {
    if (run_by == RunBy::user_without_rights && ::geteuid() == 0) {
        if (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0) {
            ::_exit(not_started);
        }
    }
    std::array<char*, 3> arguments{const_cast<char*>(program), const_cast<char*>(folder),
                                   nullptr};
    ::execve(program, arguments.data(), environment);
    ::_exit(not_started);
}

}  // namespace

PilotProcess::PilotProcess(std::filesystem::path const& folder, Environment const& environment,
                           RunBy run_by) {
    std::signal(SIGPIPE, SIG_IGN);
    std::filesystem::path program = PILOTE;
    if (run_by == RunBy::user_without_rights) {
        program = m_program_folder.emplace().path() / "pilote";
        std::filesystem::copy_file(PILOTE, program);
    }
    auto own = variables(environment);
    std::vector<char*> pointers;
    for (auto& variable : own) pointers.push_back(variable.data());
    pointers.push_back(nullptr);
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    if (::pipe2(input.data(), O_CLOEXEC) != 0 || ::pipe2(output.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error{"no pipe"};
    }
    m_process = ::fork();
    if (m_process < 0) throw std::runtime_error{"no process"};
    if (m_process == 0) {
        ::dup2(input[0], STDIN_FILENO);
        ::dup2(output[1], STDOUT_FILENO);
        become(program.c_str(), folder.c_str(), pointers.data(), run_by);
    }
    ::close(input[0]);
    ::close(output[1]);
    m_input = input[1];
    m_output = output[0];
}

PilotProcess::~PilotProcess() {
    kill();
    close_input();
    ::close(m_output);
}

Json PilotProcess::ask(Json const& request) {
    if (send(request.dump())) {
        if (auto const answer = next_line()) return Json::parse(*answer);
    }
    ADD_FAILURE() << "no answer to " << request;
    return nullptr;
}

Json PilotProcess::load() {
    ask({{"op", "clock"}, {"date", "21/11/2026"}, {"time", "10:15:00"}});
    return ask({{"op", "load"}});
}

bool PilotProcess::send(std::string const& line) {
    std::string const bytes = line + "\n";
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        auto const count = ::write(m_input, bytes.data() + sent, bytes.size() - sent);
        if (count <= 0) return false;
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

void PilotProcess::wait_for_answers(std::size_t count) {
    while (count > 0 && next_line()) --count;
}

bool PilotProcess::read_more() {
    pollfd ready{.fd = m_output, .events = POLLIN, .revents = 0};
    if (::poll(&ready, 1, patience) != 1) {
        ADD_FAILURE() << "the process hangs";
        if (m_process > 0) ::kill(m_process, SIGKILL);
        return false;
    }
    std::array<char, 65536> block{};
    auto const count = ::read(m_output, block.data(), block.size());
    if (count <= 0) return false;
    m_read.append(block.data(), static_cast<std::size_t>(count));
    return true;
}

std::optional<std::string> PilotProcess::next_line() {
    auto end = m_read.find('\n');
    while (end == std::string::npos) {
        auto const looked_at = m_read.size();
        if (!read_more()) return {};
        end = m_read.find('\n', looked_at);
    }
    std::string line = m_read.substr(0, end);
    m_read.erase(0, end + 1);
    return line;
}

void PilotProcess::kill() {
    if (m_process < 0) return;
    ::kill(m_process, SIGKILL);
    ::waitpid(std::exchange(m_process, -1), nullptr, 0);
}

int PilotProcess::end() {
    close_input();
    // Its output closes with it.
    while (read_more()) m_read.clear();
    int status = 0;
    ::waitpid(std::exchange(m_process, -1), &status, 0);
    if (!WIFEXITED(status)) return -WTERMSIG(status);
    EXPECT_NE(WEXITSTATUS(status), not_started) << "the pilot could not be started";
    return WEXITSTATUS(status);
}

void PilotProcess::close_input() {
    if (m_input >= 0) ::close(std::exchange(m_input, -1));
}

std::string preloadable(std::filesystem::path const& library, TemporaryFolder const& folder) {
    auto const link = folder.path() / library.filename();
    std::filesystem::create_symlink(library, link);
    return link.string();
}

}  // namespace navarun::test
