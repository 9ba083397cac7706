// Any lines as requests: each is answered by one object; only a fatal error or the program's
// own end stops the run. The first byte tells whether the program is started before.
#include <filesystem>
#include <sstream>

#include "tests/fuzz/fuzz.h"
#include "tests/support/folder_in_memory.h"
#include "tools/pilote/pilot.h"

namespace {

// A folder for the runs of this process, gone with it.
struct Folder {
    Folder() { empty(); }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    void empty() const {
        std::filesystem::remove_all(path);
        std::filesystem::create_directories(path);
    }
    std::filesystem::path const path = navarun::test::folder_in_memory("navarun-fuzz");
};

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using navarun::fuzz::require;
    static Folder const folder;
    if (size == 0) return 0;
    folder.empty();
    navarun::pilot::Pilot pilot{folder.path};
    if (data[0] != '-') {
        pilot.answer_line(R"({"op":"clock","date":"21/11/2026","time":"10:15:00"})");
        pilot.answer_line(R"({"op":"load"})");
    }
    std::istringstream lines{navarun::fuzz::text_of(data + 1, size - 1)};
    std::string line;
    while (!pilot.exit_status() && std::getline(lines, line)) {
        auto const answer =
            navarun::pilot::Json::parse(pilot.answer_line(line), nullptr, false);
        require(answer.is_object(), "an object for each line");
        bool const ended = answer.contains("ended") || answer.value("error", "") == "fatal";
        require(ended == pilot.exit_status().has_value(), "the end is told");
    }
    return 0;
}
