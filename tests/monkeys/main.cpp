// monkeys [--events N] [--seed S] [--share N] [--folder F] [--prepare F]
//
// Lets the random user loose on a practice in a temporary folder and looks, after each event,
// whether the window keeps its promises. What breaks one is printed as the shortest script that
// does so again, in lines for the pilot.
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <optional>

#include "tests/monkeys/monkey.h"
#include "tests/monkeys/promises.h"
#include "tests/monkeys/shrink.h"
#include "tests/support/folder_in_memory.h"

namespace {

using namespace navarun::monkeys;
namespace fs = std::filesystem;

// A practice begins anew after so many events: what a script is shortened from stays short.
constexpr long events_a_practice = 10'000;

struct Wanted {
    long events = 1'000'000;
    long seed = 1;
    long share = 1;  // one of so many runs that share the events
    fs::path folder;
    bool prepare = false;
};

bool number(char const* text, long& into) {
    char const* const end = text + std::strlen(text);
    return std::from_chars(text, end, into).ptr == end && into > 0;
}

std::optional<Wanted> read(int argc, char** argv) {
    Wanted wanted;
    if (char const* const events = std::getenv("NAVARUN_MONKEY_EVENTS")) {
        if (!number(events, wanted.events)) return {};
    }
    for (int i = 1; i + 1 < argc; i += 2) {
        std::string const option = argv[i];
        bool good = true;
        if (option == "--events") {
            good = number(argv[i + 1], wanted.events);
        } else if (option == "--seed") {
            good = number(argv[i + 1], wanted.seed);
        } else if (option == "--share") {
            good = number(argv[i + 1], wanted.share);
        } else if (option == "--folder" || option == "--prepare") {
            wanted.folder = argv[i + 1];
            wanted.prepare = option == "--prepare";
        } else {
            good = false;
        }
        if (!good) return {};
    }
    if (argc % 2 == 0) return {};
    return wanted;
}

// The promise that a script breaks, if any.
std::optional<std::string> broken_by(fs::path const& folder, std::vector<Event> const& script) {
    PracticeRun run{folder};
    for (auto const& event : script) {
        Outcome const outcome = run.perform(event);
        if (auto broken = broken_promise(run, outcome)) return broken;
    }
    return {};
}

void print(fs::path const& folder, std::vector<Event> const& script) {
    std::cout << "The shortest script, for a folder made by \"monkeys --prepare FOLDER\": each "
                 "part for a pilote\nstarted in that folder on it (cd FOLDER && pilote .):\n";
    PracticeRun run{folder};
    for (auto const& event : script) {
        Outcome const outcome = run.perform(event);
        if (run.began()) {
            std::cout << "\n"
                      << as_request(
                             {.act = Act::clock, .control = first_date, .text = first_time})
                      << "\n{\"op\":\"load\"}\n";
        }
        std::cout << as_request(event) << "\n";
        if (broken_promise(run, outcome)) return;
    }
}

int run(Wanted const& wanted) {
    long const events = (wanted.events + wanted.share - 1) / wanted.share;
    std::map<std::string, long> ends;
    long runs = 0;
    for (long done = 0, practice = 0; done < events; ++practice) {
        Monkey monkey{static_cast<std::uint64_t>(wanted.seed) * 1'000'003 +
                      static_cast<std::uint64_t>(practice)};
        std::optional<PracticeRun> practice_run{wanted.folder};
        auto& run = *practice_run;
        std::vector<Event> script;
        for (; static_cast<long>(script.size()) < events_a_practice && done < events; ++done) {
            script.push_back(monkey.next(run.program()));
            Outcome const outcome = run.perform(script.back());
            runs += run.began();
            auto const broken = broken_promise(run, outcome);
            if (run.program() == nullptr) ++ends[outcome.text];
            if (!broken) continue;
            std::cout << "Broken after " << done + 1 << " events of seed " << wanted.seed
                      << ": " << *broken << "\n"
                      << std::flush;
            practice_run.reset();  // its folder is needed
            print(wanted.folder, shortest(script, [&](auto const& shorter) {
                      return broken_by(wanted.folder, shorter) == broken;
                  }));
            return 1;
        }
    }
    std::cout << events << " events, " << runs << " runs. They ended:\n";
    for (auto const& [text, count] : ends) {
        std::cout << count << "  " << text.substr(0, text.find('\r')) << "\n";
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    auto wanted = read(argc, argv);
    if (!wanted) {
        std::cerr << "monkeys [--events N] [--seed S] [--share N] [--folder F] [--prepare F]\n";
        return 2;
    }
    bool const own_folder = wanted->folder.empty();
    if (own_folder) {
        wanted->folder = navarun::test::folder_in_memory("navarun-monkeys");
        // A killed run of the same number may have left it.
        fs::remove_all(wanted->folder);
    }
    fs::create_directories(wanted->folder);
    wanted->folder = fs::canonical(wanted->folder);
    if (wanted->prepare) {
        prepare(wanted->folder);
        return 0;
    }
    if (!own_folder && !fs::is_empty(wanted->folder)) {
        std::cerr << wanted->folder << " is not empty\n";
        return 2;
    }
    fs::current_path(wanted->folder);
    int const status = run(*wanted);
    std::error_code ignored;
    fs::current_path("/", ignored);
    fs::remove_all(wanted->folder, ignored);
    return status;
}
