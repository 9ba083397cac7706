// Two acts in a row, in every order, the disk failing at each operation of the second in turn:
// what the first did stays done, every file is one that was whole before or after, no record is
// lost, and the next start comes up.
#include <cerrno>
#include <cstdlib>
#include <functional>
#include <map>
#include <ostream>
#include <set>

#include <gtest/gtest.h>

#include "tests/files/pictures.h"
#include "tests/files/practice.h"
#include "tests/support/pilot_process.h"

namespace navarun::test {

namespace {

using Tree = std::map<std::string, std::string>;  // path below the resources, bytes

// The program at work, as one user uses it after the other.
class Desk {
  public:
    Desk(std::filesystem::path const& folder, Environment const& environment)
        : m_pilote{folder, environment} {}

    /// False where the program did not go on.
    bool start() {
        return act({{"op", "clock"}, {"date", "21/11/2026"}, {"time", "10:15:00"}}) &&
               act({{"op", "load"}});
    }
    bool act(Json const& request) {
        m_answer = m_pilote.ask(request);
        return m_answer.is_object() && m_answer.contains("ok");
    }
    bool click(char const* control) { return act({{"op", "click"}, {"control", control}}); }
    bool set(char const* control, std::string const& value) {
        return act({{"op", "set"}, {"control", control}, {"value", value}});
    }
    bool key(char const* control, int code) {
        return act({{"op", "key"}, {"control", control}, {"code", code}});
    }
    bool choose(char const* control, char const* item) {
        return act({{"op", "choose"}, {"control", control}, {"item", item}});
    }
    /// Opens one of the panels, or closes it, whatever stands open.
    bool panel(char const* button, char const* frame, bool open) {
        std::string const visible = std::string{frame} + ".Visible";
        for (int i = 0; i < 2; ++i) {
            Json const answer =
                m_pilote.ask({{"op", "get"}, {"names", Json::array({visible})}});
            if (!answer.contains("values")) return false;
            if (answer["values"][visible] == open) return true;
            if (!click(button)) return false;
        }
        return false;
    }
    bool open_records() {
        return panel("Bouton_Internet", "Frame_Internet", false) &&
               panel("Charge(1)", "Frame_FileFichier", false) &&
               panel("Charge(1)", "Frame_FileFichier", true);
    }
    bool close_panels() {
        return panel("Bouton_Internet", "Frame_Internet", false) &&
               panel("Charge(1)", "Frame_FileFichier", false);
    }
    bool open_addresses() {
        return close_panels() && panel("Bouton_Internet", "Frame_Internet", true);
    }

    Json const& answer() const { return m_answer; }
    int end() { return m_pilote.end(); }

  private:
    PilotProcess m_pilote;
    Json m_answer;
};

struct Act {
    char const* name;
    std::function<bool(Desk&)> perform;  // false where the program did not go on
    friend std::ostream& operator<<(std::ostream& out, Act const& row) {
        return out << row.name;
    }
};

// Longer than what one write takes at once.
std::string const long_note(20'000, 'n');

bool save(Desk& desk, char const* first_name, std::string const& note) {
    return desk.close_panels() && desk.set("Text_prenom", first_name) &&
           desk.set("Text_nom", "Dupont") && desk.set("Text_Note", note) &&
           desk.click("Command_Disk_Vert");
}

// Each can follow each other; what an act needs is there whatever the one before took away.
Act const acts[] = {
    {"saving_over_a_record", [](Desk& desk) { return save(desk, "Zoe", long_note); }},
    {"saving_a_new_record", [](Desk& desk) { return save(desk, "Marie", "courte"); }},
    {"loading",
     [](Desk& desk) {
         return desk.open_records() && desk.choose("File_Fichier", "Martin Luc.fcy") &&
                desk.key("File_Fichier", key_enter);
     }},
    {"moving",
     [](Desk& desk) {
         return desk.open_records() && desk.choose("File_Fichier", "Dupont Jean.fcy") &&
                desk.key("File_Fichier", key_control) &&
                desk.act({{"op", "drop"}, {"control", "Charge(2)"}});
     }},
    {"deleting",
     [](Desk& desk) {
         return desk.open_records() && desk.choose("File_Fichier", "Dupont Anne.fcy") &&
                desk.click("Command_reset");
     }},
    {"choosing_the_colours",
     [](Desk& desk) { return desk.click("MnuMauve_Aum") && desk.click("MnuAzur_Aum"); }},
    {"choosing_short_names", [](Desk& desk) { return desk.click("Mnu_abrege"); }},
    {"adding_an_address",
     [](Desk& desk) {
         return desk.open_addresses() && desk.set("Text_New_URL", "www.neuve.example") &&
                desk.click("Command_Disk_Vert");
     }},
    {"deleting_an_address",
     [](Desk& desk) {
         return desk.open_addresses() && desk.choose("List_Internet", "b.example") &&
                desk.click("Command_reset");
     }},
    {"reporting", [](Desk& desk) { return desk.click("MnuPersonalite"); }},
    {"dropping_a_portrait",
     [](Desk& desk) {
         return desk.act({{"op", "drop"}, {"control", "Picture_PHOTO"}, {"file", "zoe.gif"}});
     }},
};

struct Failure {
    char const* name;
    int number;
};
constexpr Failure failures[] = {{"no space", ENOSPC},           {"no permission", EACCES},
                                {"input or output error", EIO}, {"interrupted", EINTR},
                                {"vanished", ENOENT},           {"read only", EROFS},
                                {"not all written", 0},         {"no more open files", EMFILE}};

// A short write is of writes alone, and most calls are never interrupted.
bool is_particular(Failure const& failure) {
    return failure.number == 0 || failure.number == EINTR;
}

class FaultSequences : public testing::TestWithParam<Act> {
  protected:
    void prepare() {
        std::filesystem::remove_all(resources());
        std::filesystem::remove(at_root("frappe"));
        std::filesystem::remove(at_root("arme"));
        put_file(resources() / "DATA1/Dupont Zoe.fcy",
                 record_of("Zoe", "Dupont", "", "ancienne"));
        put_file(resources() / "DATA1/Dupont Jean.fcy", record_of("Jean", "Dupont"));
        put_file(resources() / "DATA1/Dupont Anne.fcy", record_of("Anne", "Dupont"));
        put_file(resources() / "DATA1/Martin Luc.fcy", record_of("Luc", "Martin", "luc.gif"));
        put_file(resources() / "DATA2/Adam Paul.fcy", record_of("Paul", "Adam"));
        put_file(resources() / "IMAGE/luc.gif", gif(10, 10));
        put_file(resources() / "CONFIG.CFG", "0,0\r\n");
        put_file(resources() / "INTERNET.DAT", "\"a.example\"\r\n\"b.example\"\r\n");
        put_file(at_root("depot/zoe.gif"), gif(20, 20));
    }

    // Not below the folder where the disk fails: the portrait that is dropped.
    std::function<bool(Desk&)> of(Act const& act) {
        if (std::string{act.name} != "dropping_a_portrait") return act.perform;
        return [path = at_root("depot/zoe.gif").string()](Desk& desk) {
            return desk.act({{"op", "drop"}, {"control", "Picture_PHOTO"}, {"file", path}});
        };
    }

    Tree tree() const {
        Tree found;
        for (auto const& entry : std::filesystem::recursive_directory_iterator{resources()}) {
            if (!entry.is_regular_file()) continue;
            found[std::filesystem::relative(entry.path(), resources()).string()] =
                file_content(entry.path());
        }
        return found;
    }

    // Runs first and second; the disk fails while the second runs.
    // @return whether the fault struck
    bool run(Act const& second, int number, Failure const& failure) {
        prepare();
        Environment environment{
            {"LD_PRELOAD", m_shim},
            {"ASAN_OPTIONS", "verify_asan_link_order=0"},
            {"FAULT_FOLDER", resources().string()},
            {"FAULT_MARK", at_root("frappe").string()},
            {"FAULT_ARMED", at_root("arme").string()},
            {"FAULT_CALL", failure.number == 0 ? "write" : "any"},
            {"FAULT_NUMBER", std::to_string(number)},
            {"FAULT_ERRNO", std::to_string(failure.number)},
        };
        Tree before;
        bool struck = false;
        {
            Desk desk{m_folder.path(), environment};
            EXPECT_TRUE(desk.start()) << desk.answer();
            EXPECT_TRUE(of(GetParam())(desk)) << desk.answer();
            before = tree();
            put_file(at_root("arme"), "");
            bool const went_on = of(second)(desk);
            std::filesystem::remove(at_root("arme"));
            // A folder that cannot be listed shows no entries: there is nothing to act on.
            bool const unlisted =
                desk.answer().is_object() && desk.answer().value("error", "") == "unknown";
            bool const ended = !went_on && !unlisted;
            if (ended) {
                EXPECT_EQ(desk.answer().is_object() ? desk.answer().value("error", "") : "",
                          "fatal")
                    << desk.answer();
                EXPECT_NE(report_of(desk.answer()), "") << desk.answer();
            }
            EXPECT_EQ(desk.end(), ended ? 1 : 0);
            EXPECT_FALSE(ended && is_particular(failure)) << desk.answer();
            struck = std::filesystem::exists(at_root("frappe"));
            check(before, after(second), went_on);
        }
        check_next_start();
        return struck;
    }

    // What both acts leave where nothing fails.
    Tree const& after(Act const& second) {
        auto& known = m_after[second.name];
        if (!known.empty()) return known;
        std::filesystem::path const kept = m_folder.path() / "gardees";
        std::filesystem::rename(resources(), kept);
        prepare();
        {
            Desk desk{m_folder.path(), {}};
            EXPECT_TRUE(desk.start() && of(GetParam())(desk) && of(second)(desk))
                << desk.answer();
            desk.end();
        }
        known = tree();
        std::filesystem::remove_all(resources());
        std::filesystem::rename(kept, resources());
        return known;
    }

    void check(Tree const& before, Tree const& expected, bool went_on) {
        Tree const found = tree();
        if (went_on) {
            EXPECT_TRUE(found == expected) << "it went on, and did something else";
        }
        std::set<std::string> contents;
        auto const has = [](Tree const& in, std::string const& path, std::string const& bytes) {
            auto const file = in.find(path);
            return file != in.end() && file->second == bytes;
        };
        for (auto const& [path, bytes] : found) {
            contents.insert(bytes);
            bool const rescued = path.find("SAUVETAGE") != std::string::npos;
            bool const colours = path == "CONFIG.CFG" && bytes.size() == 5;
            bool const report = path.ends_with(".txt");
            EXPECT_TRUE(has(before, path, bytes) || has(expected, path, bytes) || rescued ||
                        colours || report)
                << path << " has " << bytes.size() << " bytes: " << bytes.substr(0, 100);
            EXPECT_FALSE(path.ends_with(".tmp")) << path;
        }
        // What stands before and after, wherever it stands, is never lost on the way.
        std::set<std::string> stays;
        for (auto const& [path, bytes] : before) {
            if (path == "CONFIG.CFG") continue;  // two choices lead there and back
            for (auto const& [new_path, new_bytes] : expected) {
                if (bytes == new_bytes) stays.insert(bytes);
            }
        }
        for (auto const& bytes : stays) {
            EXPECT_TRUE(contents.contains(bytes)) << "lost: " << bytes.substr(0, 100);
        }
    }

    void check_next_start() {
        // Short names make the start after them end, as told; the one after that comes up.
        for (int tries = 0; tries < 2; ++tries) {
            Desk desk{m_folder.path(), {}};
            bool const up = desk.start();
            bool const records_open = up && desk.open_records();
            desk.end();
            if (records_open) return;
            EXPECT_NE(report_of(desk.answer()).find("thème"), std::string::npos)
                << desk.answer();
        }
        ADD_FAILURE() << "the next start does not come up";
    }

    std::filesystem::path resources() const { return m_folder.path() / "RESSOURCES"; }
    std::filesystem::path at_root(std::string const& name) const {
        return m_folder.path() / name;
    }

  private:
    TemporaryFolder m_folder;
    std::string const m_shim = preloadable(FAULT_SHIM, m_folder);
    std::map<std::string, Tree> m_after;
};

bool can_follow(std::string const& first, std::string const& second) {
    // What is gone cannot go again.
    bool const takes_away =
        first == "moving" || first == "deleting" || first == "deleting_an_address";
    return !(takes_away && first == second);
}

TEST_P(FaultSequences, EachOperationOfTheSecondFailsInTurn) {
    bool const all = std::getenv("NAVARUN_LONG_TESTS") != nullptr;
    int strikes = 0;
    std::size_t turn = 0;
    std::size_t pair = std::string_view{GetParam().name}.size();
    for (auto const& second : acts) {
        if (!can_follow(GetParam().name, second.name)) continue;
        bool struck = true;
        // Here every other operation, the even ones of one pair and the odd ones of the next.
        int const first = all ? 1 : 1 + static_cast<int>(pair++ % 2);
        for (int number = first; struck && number < 200; number += all ? 1 : 2) {
            struck = false;
            for (std::size_t i = 0; i < std::size(failures); ++i) {
                // Each operation fails in one way here, the ways taking turns; at full length
                // in all.
                auto const& failure = failures[all ? i : turn++ % std::size(failures)];
                SCOPED_TRACE(std::string{second.name} + ", operation " +
                             std::to_string(number) + ": " + failure.name);
                bool const this_one = run(second, number, failure);
                struck = struck || this_one;
                strikes += this_one;
                if (!all && (this_one || !is_particular(failure))) break;
            }
        }
    }
    EXPECT_GE(strikes, 30);
    RecordProperty("strikes", strikes);
}

INSTANTIATE_TEST_SUITE_P(First, FaultSequences, testing::ValuesIn(acts),
                         [](auto const& row) { return row.param.name; });

}  // namespace

}  // namespace navarun::test
