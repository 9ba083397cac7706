// The program finds its own file and its folder, by whatever name it was called.
#include <QCoreApplication>
#include <QString>
#include <filesystem>

#include <gtest/gtest.h>

#include "desktop/started_program.h"

namespace navarun::test {

namespace {

using desktop::application_folder;
using desktop::started_program;

std::filesystem::path own_file() {
    return std::filesystem::canonical(QCoreApplication::applicationFilePath().toStdString());
}

// A search path of its own for as long as a test goes on.
class SearchPath {
  public:
    explicit SearchPath(std::filesystem::path const& folder) {
        qputenv("PATH", QByteArray::fromStdString(folder.string()));
    }
    ~SearchPath() { qputenv("PATH", m_before); }
    SearchPath(SearchPath const&) = delete;
    SearchPath& operator=(SearchPath const&) = delete;

  private:
    QByteArray m_before = qgetenv("PATH");
};

// The tests are started by a path, along the search path and by a name that leads nowhere.
TEST(StartedProgram, IsTheFileThatRuns) {
    EXPECT_EQ(std::filesystem::weakly_canonical(started_program().toStdString()), own_file());
    EXPECT_TRUE(std::filesystem::path{started_program().toStdString()}.is_absolute());
}

TEST(StartedProgram, ByAPathHasTheFolderOfThatPath) {
    EXPECT_EQ(application_folder("/a folder/navarun"), "/a folder");
    EXPECT_EQ(application_folder("a folder/navarun"),
              std::filesystem::current_path() / "a folder");
}

TEST(StartedProgram, FoundAlongTheSearchPathHasTheFolderWhereItWasFound) {
    SearchPath const path{own_file().parent_path()};
    EXPECT_EQ(application_folder(own_file().filename().c_str()), own_file().parent_path());
}

TEST(StartedProgram, ByANameThatLeadsNowhereHasTheFolderOfItsOwnFile) {
    SearchPath const path{"/none"};
    for (char const* name : {"", "nobody"}) {
        EXPECT_EQ(application_folder(name), own_file().parent_path()) << name;
    }
}

}  // namespace

}  // namespace navarun::test
