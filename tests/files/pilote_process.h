// The program as a process of its own, driven through its pipes.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace navarun::test {

using Json = nlohmann::ordered_json;
using Environment = std::vector<std::pair<std::string, std::string>>;

class PiloteProcess {
  public:
    /// Starts the program on a folder, with these variables besides the test's own.
    explicit PiloteProcess(std::filesystem::path const& folder,
                           Environment const& environment = {});
    ~PiloteProcess();
    PiloteProcess(PiloteProcess const&) = delete;
    PiloteProcess& operator=(PiloteProcess const&) = delete;

    /// Sends a request and waits for its answer; null where the program has ended.
    Json ask(Json const& request);
    /// Sends without waiting. False where the program no longer listens.
    bool send(std::string const& line);
    /// Waits for so many answers to what was sent; comes back sooner where the program has
    /// ended.
    void wait_for_answers(std::size_t count);
    /// Like the above, may be called by another thread while send() waits.
    void kill();
    /// Lets it end by itself; its exit status, or minus the number of the signal.
    int wait();

  private:
    /// Adds what the program has written. False where it has ended.
    bool read_more();

    int m_pid = -1;
    int m_to = -1;
    int m_from = -1;
    std::string m_read;
};

}  // namespace navarun::test
