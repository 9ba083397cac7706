// Disks that fail: whatever operation of a run goes wrong, no record is ever lost or half
// written, and the consultation on the screen is kept or the report says that it could not be.
#include <cerrno>
#include <map>
#include <ostream>

#include <gtest/gtest.h>

#include "tests/files/pictures.h"
#include "tests/files/practice.h"
#include "tests/support/pilot_process.h"

namespace navarun::test {

namespace {

// Longer than any buffer between the program and the disk.
std::string const long_note(40000, 'n');

Json click(char const* control) { return {{"op", "click"}, {"control", control}}; }
Json set(char const* control, std::string const& value) {
    return {{"op", "set"}, {"control", control}, {"value", value}};
}
Json choose(char const* control, char const* item) {
    return {{"op", "choose"}, {"control", control}, {"item", item}};
}
Json key(char const* control, int code) {
    return {{"op", "key"}, {"control", control}, {"code", code}};
}

std::string const old_record = record_of("Zoe", "Dupont", "", "ancienne note");
std::string const other_record = record_of("Luc", "Martin", "zoe.gif");
std::string const second_folder_record = record_of("Jean", "Adam");
std::string const new_record =
    "\"Zoe\",\"Dupont\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"" + long_note + "\"\r\n";
std::string const typed_record =
    "\"Marie\",\"Nouvelle\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"" + long_note + "\"\r\n";

struct Scene {
    char const* name;
    char const* below;  // where the disk fails, from the application folder on
    std::vector<Json> requests;
    std::string rescued;  // what a rescue holds
    friend std::ostream& operator<<(std::ostream& out, Scene const& row) {
        return out << row.name;
    }
};

std::vector<Json> typed_before(std::vector<Json> const& acts) {
    std::vector<Json> requests{set("Text_prenom", "Marie"), set("Text_nom", "Nouvelle"),
                               set("Text_Note", long_note)};
    requests.insert(requests.end(), acts.begin(), acts.end());
    return requests;
}

Scene const scenes[] = {
    {"saving_over_an_older_record",
     "RESSOURCES/DATA",
     {set("Text_prenom", "Zoe"), set("Text_nom", "Dupont"), set("Text_Note", long_note),
      click("Command_Disk_Vert")},
     new_record},
    {"saving_a_new_record", "RESSOURCES/DATA", typed_before({click("Command_Disk_Vert")}),
     typed_record},
    {"loading", "RESSOURCES/",
     typed_before({click("Charge(1)"),
                   choose("File_Fichier", "Martin Luc.fcy"),
                   {{"op", "dblclick"}, {"control", "File_Fichier"}}}),
     typed_record},
    {"moving", "RESSOURCES/DATA",
     typed_before({click("Charge(1)"),
                   choose("File_Fichier", "Dupont Zoe.fcy"),
                   key("File_Fichier", key_control),
                   {{"op", "drop"}, {"control", "Charge(2)"}}}),
     typed_record},
    {"deleting", "RESSOURCES/DATA",
     typed_before({click("Charge(1)"), choose("File_Fichier", "Dupont Zoe.fcy"),
                   click("Command_reset")}),
     typed_record},
    {"choosing_the_colours", "RESSOURCES/", typed_before({click("MnuMauve_Aum")}),
     typed_record},
    {"adding_an_address", "RESSOURCES/",
     typed_before({click("Bouton_Internet"), set("Text_New_URL", "www.neuve.example"),
                   click("Command_Disk_Vert")}),
     typed_record},
};

class Faults : public testing::TestWithParam<Scene> {
  protected:
    // A practice with records, a portrait and an address book, as a run without faults left it.
    void prepare() {
        std::filesystem::remove_all(m_folder.path() / "RESSOURCES");
        std::filesystem::remove(mark());
        put_file(at("DATA1/Dupont Zoe.fcy"), old_record);
        put_file(at("DATA1/Martin Luc.fcy"), other_record);
        put_file(at("DATA2/Adam Jean.fcy"), second_folder_record);
        put_file(at("IMAGE/zoe.gif"), gif(10, 10));
        put_file(at("CONFIG.CFG"), "0,0\r\n");
        put_file(at("INTERNET.DAT"), "\"a.example\"\r\n\"b.example\"\r\n");
    }

    // Runs the scene under the fault and checks what it leaves.
    // @return whether the fault struck at all
    bool run(Environment fault, std::string const& told) {
        SCOPED_TRACE(told);
        prepare();
        fault.emplace_back("LD_PRELOAD", m_shim);
        // Where the program is built to be watched, the watcher does not mind coming second.
        fault.emplace_back("ASAN_OPTIONS", "verify_asan_link_order=0");
        fault.emplace_back("FAULT_FOLDER", (m_folder.path() / GetParam().below).string());
        fault.emplace_back("FAULT_MARK", mark().string());
        PilotProcess pilote{m_folder.path(), fault};
        Json answer = pilote.load();
        bool const started = answer.contains("ok");
        bool typed = false;  // the person stands in the fields, the diskette is red
        std::size_t place = 0;
        for (; started && place < GetParam().requests.size(); ++place) {
            typed = place >= 3;
            answer = pilote.ask(GetParam().requests[place]);
            if (!answer.contains("ok")) break;
        }
        int const status = pilote.end();
        if (answer.is_object() && answer.contains("ok")) {
            EXPECT_EQ(status, 0);
            check_finished();
        } else {
            EXPECT_TRUE(answer.is_object() && answer.value("error", "") == "fatal") << answer;
            EXPECT_EQ(status, 1);
            EXPECT_NE(report_of(answer), "") << answer;
            if (typed) check_kept(report_of(answer));
        }
        check_records();
        return std::filesystem::exists(mark());
    }

    // Every record is one of those that some save of a practitioner made, whole.
    void check_records() {
        std::map<std::string, std::string> found;
        for (int const number : {1, 2}) {
            auto const folder = "DATA" + std::to_string(number);
            for (auto const& name : names_in(at(folder))) {
                if (!name.ends_with(".fcy")) continue;
                auto const bytes = file_content(at(folder + "/" + name));
                bool const whole = bytes == old_record || bytes == new_record ||
                                   bytes == typed_record || bytes == other_record ||
                                   bytes == second_folder_record;
                EXPECT_TRUE(whole)
                    << folder << "/" << name << " has " << bytes.size() << " bytes";
                found[name] = bytes;
            }
        }
        EXPECT_EQ(found["Martin Luc.fcy"], other_record);
        EXPECT_EQ(found["Adam Jean.fcy"], second_folder_record);
        std::string const scene = GetParam().name;
        if (scene == "saving_over_an_older_record") {
            auto const& bytes = found["Dupont Zoe.fcy"];
            EXPECT_TRUE(bytes == old_record || bytes == new_record);
        } else if (scene != "deleting") {
            EXPECT_EQ(found["Dupont Zoe.fcy"], old_record);
        }
        auto const settings = file_content(at("CONFIG.CFG"));
        EXPECT_TRUE(settings == "0,0\r\n" || settings == "3,0\r\n") << settings;
        auto const book = file_content(at("INTERNET.DAT"));
        EXPECT_TRUE(book.starts_with("\"a.example\"\r\n\"b.example\"\r\n")) << book;
    }

    void check_kept(std::string const& report) {
        if (report.find("n'a pas pu être gardée") != std::string::npos) return;
        EXPECT_NE(report.find("SAUVETAGE.fcy"), std::string::npos) << report;
        auto const kept = file_content(at("DATA1/SAUVETAGE.fcy"));
        // A load that fails at the portrait has put the other person on the screen already.
        bool const loaded = GetParam().name == std::string{"loading"} && kept == other_record;
        EXPECT_TRUE(kept == GetParam().rescued || loaded) << kept.size() << " bytes";
    }

    // What a run that went on says, it did.
    void check_finished() {
        std::string const scene = GetParam().name;
        if (scene == "saving_over_an_older_record") {
            EXPECT_TRUE(file_content(at("DATA1/Dupont Zoe.fcy")) == new_record);
        } else if (scene == "saving_a_new_record") {
            EXPECT_TRUE(file_content(at("DATA1/Nouvelle Marie.fcy")) == typed_record);
        } else if (scene == "moving") {
            EXPECT_EQ(file_content(at("DATA2/Dupont Zoe.fcy")), old_record);
            EXPECT_FALSE(std::filesystem::exists(at("DATA1/Dupont Zoe.fcy")));
        } else if (scene == "deleting") {
            EXPECT_FALSE(std::filesystem::exists(at("DATA1/Dupont Zoe.fcy")));
        } else if (scene == "choosing_the_colours") {
            EXPECT_EQ(file_content(at("CONFIG.CFG")), "3,0\r\n");
        } else if (scene == "adding_an_address") {
            EXPECT_EQ(file_content(at("INTERNET.DAT")),
                      "\"a.example\"\r\n\"b.example\"\r\n\"www.neuve.example\"\r\n");
        }
    }

    std::filesystem::path at(std::string const& name) const {
        return m_folder.path() / "RESSOURCES" / name;
    }

  private:
    std::filesystem::path mark() const { return m_folder.path() / "frappe"; }

    TemporaryFolder m_folder;
    std::string const m_shim = preloadable(FAULT_SHIM, m_folder);
};

struct Failure {
    char const* name;
    int number;
};
constexpr Failure failures[] = {
    {"ENOSPC", ENOSPC}, {"EACCES", EACCES}, {"EIO", EIO}, {"EROFS", EROFS}};

TEST_P(Faults, EachOperationInTurn) {
    int strikes = 0;
    for (char const* const call :
         {"open", "write", "fsync", "close", "rename", "unlink", "read"}) {
        int number = 1;
        bool struck = true;
        for (; struck && number < 60; ++number) {
            for (auto const& failure : failures) {
                struck = run({{"FAULT_CALL", call},
                              {"FAULT_NUMBER", std::to_string(number)},
                              {"FAULT_ERRNO", std::to_string(failure.number)}},
                             std::string{call} + " number " + std::to_string(number) +
                                 " fails with " + failure.name);
                if (!struck) break;
                ++strikes;
            }
        }
        EXPECT_LT(number, 60) << call;
    }
    // The fewest operations are those of a deletion: the list, the file, the flush.
    EXPECT_GE(strikes, 8);
}

TEST_P(Faults, AShortWriteIsFinishedAndNothingIsToldOfIt) {
    bool struck = true;
    for (int number = 1; struck; ++number) {
        struck = run({{"FAULT_CALL", "write"},
                      {"FAULT_NUMBER", std::to_string(number)},
                      {"FAULT_ERRNO", "0"}},
                     "short write number " + std::to_string(number));
    }
}

TEST_P(Faults, ADiskThatIsFullAfter) {
    for (int const budget : {0, 1, 4, 4096, 16384, 20480, 40000, 41000}) {
        run({{"FAULT_BUDGET", std::to_string(budget)}},
            "full after " + std::to_string(budget) + " bytes");
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, Faults, testing::ValuesIn(scenes),
                         [](auto const& row) { return row.param.name; });

}  // namespace

}  // namespace navarun::test
