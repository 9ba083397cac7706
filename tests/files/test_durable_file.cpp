// Files that survive: a write replaces the whole or nothing.
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "core/fatal_error.h"
#include "files/durable_file.h"
#include "tests/support/visit.h"

namespace navarun {

namespace {

class DurableFile : public testing::Test {
  protected:
    std::filesystem::path at(std::string const& name) const { return m_folder.path() / name; }
    void put(std::string const& name, std::string const& bytes) const {
        std::ofstream{at(name), std::ios::binary} << bytes;
    }
    std::string content(std::string const& name) const {
        std::ifstream file{at(name), std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, {}};
    }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (auto const& entry : std::filesystem::directory_iterator{m_folder.path()}) {
            found.push_back(entry.path().filename().string());
        }
        std::sort(found.begin(), found.end());
        return found;
    }
    std::filesystem::path const& folder() const { return m_folder.path(); }

    template <typename Act>
    std::string report_of(Act const& act) {
        try {
            act();
        } catch (FatalError const& error) {
            return error.what();
        }
        return "";
    }

  private:
    test::TemporaryFolder m_folder;
};

TEST_F(DurableFile, IsWrittenWholeAndLeavesNothingBeside) {
    write_file(at("a.fcy"), std::string("un\0deux\r\n", 9), "a.fcy");
    EXPECT_EQ(content("a.fcy"), std::string("un\0deux\r\n", 9));
    EXPECT_EQ(names(), std::vector<std::string>{"a.fcy"});
}

TEST_F(DurableFile, ReplacesAnOlderOneWhateverItsLength) {
    for (std::size_t const length : {100000U, 3U, 20480U, 0U, 16384U}) {
        std::string const bytes(length, 'x');
        write_file(at("a.fcy"), bytes, "a.fcy");
        EXPECT_EQ(content("a.fcy"), bytes);
        EXPECT_EQ(read_file(at("a.fcy"), "a.fcy"), bytes);
    }
    EXPECT_EQ(names(), std::vector<std::string>{"a.fcy"});
}

// Who reads the old file meanwhile reads it to its end.
TEST_F(DurableFile, ANewOneLeavesAnOlderOneAsItWas) {
    write_file(at("a.gif"), "ancien", "a.gif");
    EXPECT_FALSE(write_new_file(at("a.gif"), "nouveau", "a.gif"));
    EXPECT_EQ(content("a.gif"), "ancien");
    EXPECT_EQ(names(), std::vector<std::string>{"a.gif"});
    EXPECT_TRUE(write_new_file(at("b.gif"), "nouveau", "b.gif"));
    EXPECT_EQ(content("b.gif"), "nouveau");
    EXPECT_EQ(names(), (std::vector<std::string>{"a.gif", "b.gif"}));
}

TEST_F(DurableFile, AnOpenOldFileStaysWholeForItsReader) {
    put("a.fcy", "ancien");
    std::ifstream reader{at("a.fcy"), std::ios::binary};
    write_file(at("a.fcy"), "nouveau", "a.fcy");
    EXPECT_EQ((std::string{std::istreambuf_iterator<char>{reader}, {}}), "ancien");
    EXPECT_EQ(content("a.fcy"), "nouveau");
}

TEST_F(DurableFile, AMissingFolderIsReportedByFileAndReason) {
    auto const report = report_of([&] { write_file(at("absent") / "a.fcy", "x", "a.fcy"); });
    EXPECT_EQ(report,
              "L'écriture du fichier « a.fcy » a échoué.\r\n"
              "Le fichier ou son dossier n'existe pas.");
}

TEST_F(DurableFile, AFolderInTheFilesPlaceStaysAndNothingIsLeft) {
    std::filesystem::create_directory(at("a.fcy"));
    EXPECT_NE(report_of([&] { write_file(at("a.fcy"), "x", "a.fcy"); }), "");
    EXPECT_EQ(names(), std::vector<std::string>{"a.fcy"});
    EXPECT_TRUE(std::filesystem::is_directory(at("a.fcy")));
}

TEST_F(DurableFile, ANameTooLongIsReportedAndLeavesNothing) {
    std::string const name(300, 'n');
    EXPECT_NE(report_of([&] { write_file(at(name), "x", "long"); }).find("trop long"),
              std::string::npos);
    EXPECT_TRUE(names().empty());
}

TEST_F(DurableFile, ALeftoverOfAKilledRunIsWrittenOver) {
    put("navarun.tmp", std::string(1000, 'z'));
    write_file(at("a.fcy"), "neuf", "a.fcy");
    EXPECT_EQ(content("a.fcy"), "neuf");
    EXPECT_EQ(names(), std::vector<std::string>{"a.fcy"});
}

TEST_F(DurableFile, ALeftoverIsRemovedAndNothingElse) {
    put("navarun.tmp", "reste");
    put("a.fcy", "fiche");
    remove_unfinished_file(folder());
    EXPECT_EQ(names(), std::vector<std::string>{"a.fcy"});
    remove_unfinished_file(folder());
    remove_unfinished_file(at("absent"));
    EXPECT_EQ(names(), std::vector<std::string>{"a.fcy"});
}

TEST_F(DurableFile, ReadsABigFileToItsEnd) {
    std::string bytes(3 * 16384 + 7, 'a');
    bytes[16384] = '\0';
    put("a.fcy", bytes);
    EXPECT_EQ(read_file(at("a.fcy"), "a.fcy"), bytes);
}

TEST_F(DurableFile, AMissingFileOrAFolderCannotBeRead) {
    EXPECT_EQ(report_of([&] { read_file(at("absent.fcy"), "absent.fcy"); }),
              "La lecture du fichier « absent.fcy » a échoué.\r\n"
              "Le fichier ou son dossier n'existe pas.");
    EXPECT_NE(report_of([&] { read_file(folder(), "dossier"); }), "");
}

TEST_F(DurableFile, AMoveReplacesAndLeavesNothingBehind) {
    std::filesystem::create_directory(at("deux"));
    put("a.fcy", "le mien");
    put("deux/a.fcy", "un autre");
    move_file(at("a.fcy"), at("deux") / "a.fcy", "a.fcy");
    EXPECT_EQ(content("deux/a.fcy"), "le mien");
    EXPECT_EQ(names(), std::vector<std::string>{"deux"});
}

TEST_F(DurableFile, AMoveOfWhatIsGoneLeavesTheOtherFolderAsItWas) {
    std::filesystem::create_directory(at("deux"));
    put("deux/a.fcy", "un autre");
    EXPECT_EQ(report_of([&] { move_file(at("a.fcy"), at("deux") / "a.fcy", "a.fcy"); }),
              "Le déplacement du fichier « a.fcy » a échoué.\r\n"
              "Le fichier ou son dossier n'existe pas.");
    EXPECT_EQ(content("deux/a.fcy"), "un autre");
}

// The second folder may lie on another disk, where a rename does not reach. Where both lie on
// one the move is told by the same.
TEST_F(DurableFile, AMoveToAnotherDiskCopiesAndDeletes) {
    std::filesystem::path const other{"/dev/shm"};
    auto const target = other / ("navarun-" + folder().filename().string() + ".fcy");
    put("a.fcy", "le mien");
    auto const report = report_of([&] { move_file(at("a.fcy"), target, "a.fcy"); });
    EXPECT_EQ(report, "");
    std::string const moved = std::filesystem::exists(target) ? read_file(target, "a.fcy") : "";
    std::filesystem::remove(target);
    EXPECT_EQ(moved, "le mien");
    EXPECT_FALSE(std::filesystem::exists(at("a.fcy")));
}

TEST_F(DurableFile, ADeletedFileIsGoneAndAMissingOneIsReported) {
    put("a.fcy", "x");
    delete_file(at("a.fcy"), "a.fcy");
    EXPECT_TRUE(names().empty());
    EXPECT_EQ(report_of([&] { delete_file(at("a.fcy"), "a.fcy"); }),
              "La suppression du fichier « a.fcy » a échoué.\r\n"
              "Le fichier ou son dossier n'existe pas.");
}

TEST_F(DurableFile, AFolderIsHeldByOneProgramUntilItEnds) {
    {
        FolderLock first;
        EXPECT_TRUE(first.take(folder()));
        FolderLock second;
        EXPECT_FALSE(second.take(folder()));
    }
    FolderLock next;
    EXPECT_TRUE(next.take(folder()));
    EXPECT_TRUE(FolderLock{}.take(at("absent")));
    EXPECT_TRUE(names().empty());
}

}  // namespace

}  // namespace navarun
