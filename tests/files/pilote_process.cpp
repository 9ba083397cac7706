// Pipes and signals.
#include "tests/files/pilote_process.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace navarun::test {

PiloteProcess::PiloteProcess(std::filesystem::path const& folder,
                             Environment const& environment) {
    std::signal(SIGPIPE, SIG_IGN);
    int to[2];
    int from[2];
    if (::pipe2(to, O_CLOEXEC) != 0 || ::pipe2(from, O_CLOEXEC) != 0)
        throw std::runtime_error{"pipe"};
    m_pid = ::fork();
    if (m_pid < 0) throw std::runtime_error{"fork"};
    if (m_pid == 0) {
        ::dup2(to[0], STDIN_FILENO);
        ::dup2(from[1], STDOUT_FILENO);
        for (auto const& [name, value] : environment) {
            ::setenv(name.c_str(), value.c_str(), 1);
        }
        ::execl(PILOTE, PILOTE, folder.c_str(), nullptr);
        ::_exit(127);
    }
    ::close(to[0]);
    ::close(from[1]);
    m_to = to[1];
    m_from = from[0];
}

PiloteProcess::~PiloteProcess() {
    if (m_pid > 0) kill();
    if (m_to >= 0) ::close(m_to);
    ::close(m_from);
}

bool PiloteProcess::send(std::string const& line) {
    std::string const bytes = line + "\n";
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        auto const count = ::write(m_to, bytes.data() + sent, bytes.size() - sent);
        if (count <= 0) return false;
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

Json PiloteProcess::ask(Json const& request) {
    if (!send(request.dump())) return nullptr;
    while (true) {
        auto const end = m_read.find('\n');
        if (end != std::string::npos) {
            Json answer = Json::parse(m_read.substr(0, end));
            m_read.erase(0, end + 1);
            return answer;
        }
        if (!read_more()) return nullptr;
    }
}

bool PiloteProcess::read_more() {
    char block[65536];
    auto const count = ::read(m_from, block, sizeof block);
    if (count <= 0) return false;
    m_read.append(block, static_cast<std::size_t>(count));
    return true;
}

void PiloteProcess::wait_for_answers(std::size_t count) {
    while (count > 0) {
        auto const end = m_read.find('\n');
        if (end == std::string::npos) {
            if (!read_more()) return;
            continue;
        }
        m_read.erase(0, end + 1);
        --count;
    }
}

void PiloteProcess::kill() {
    ::kill(m_pid, SIGKILL);
    ::waitpid(std::exchange(m_pid, -1), nullptr, 0);
}

int PiloteProcess::wait() {
    ::close(std::exchange(m_to, -1));
    int status = 0;
    ::waitpid(std::exchange(m_pid, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace navarun::test
