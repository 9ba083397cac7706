// Finding the desktop's own programs.
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include "desktop/outside_programs.h"
#include "tests/support/visit.h"

namespace navarun::test {
namespace {

using desktop::command_line_of;
using desktop::command_line_of_entry;

// A desk of its own: its programs, its menu entries, its defaults.
class Desk : public testing::Test {
  protected:
    Desk() {
        for (char const* name : {"bin", "data/applications", "config"}) {
            QDir{}.mkpath(path(name));
        }
        qputenv("XDG_DATA_HOME", path("data").toUtf8());
        qputenv("XDG_DATA_DIRS", path("none").toUtf8());
        qputenv("XDG_CONFIG_HOME", path("config").toUtf8());
        qputenv("XDG_CONFIG_DIRS", path("none").toUtf8());
        qunsetenv("XDG_CURRENT_DESKTOP");
        qputenv("PATH", path("bin").toUtf8());
    }
    ~Desk() override {
        for (auto const& [name, value] : m_before) {
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        }
    }

    QString path(char const* name) const {
        return QString::fromStdString((m_folder.path() / name).string());
    }
    void write(QString const& file, QByteArray const& content, bool executable = false) {
        QFile written{file};
        ASSERT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(content);
        if (executable) {
            written.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
    }
    void install(char const* program) {
        write(path("bin") + QLatin1Char('/') + QLatin1String(program), "#!/bin/sh\n", true);
    }
    void write_entry(QByteArray const& lines) {
        write(path("data/applications/editor.desktop"), "[Desktop Entry]\n" + lines);
    }
    static QString name_of(std::optional<desktop::CommandLine> const& command) {
        return command ? command->program.section(QLatin1Char('/'), -1) : QString{};
    }

  private:
    TemporaryFolder m_folder;
    std::vector<std::pair<char const*, QByteArray>> m_before = [] {
        std::vector<std::pair<char const*, QByteArray>> before;
        for (char const* name : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME",
                                 "XDG_CONFIG_DIRS", "XDG_CURRENT_DESKTOP", "PATH"}) {
            before.emplace_back(name,
                                qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray{});
        }
        return before;
    }();
};

TEST_F(Desk, WithoutAnyHasNone) {
    EXPECT_FALSE(command_line_of(OutsideProgram::text_editor));
    EXPECT_FALSE(command_line_of(OutsideProgram::calculator));
}

TEST_F(Desk, GivesTheFirstCalculatorThatIsInstalled) {
    install("xcalc");
    install("kcalc");
    EXPECT_EQ(name_of(command_line_of(OutsideProgram::calculator)), "kcalc");
}

TEST_F(Desk, GivesTheCalculatorOfTheRunningDesktopFirst) {
    install("gnome-calculator");
    install("mate-calc");
    qputenv("XDG_CURRENT_DESKTOP", "ubuntu:MATE");
    EXPECT_EQ(name_of(command_line_of(OutsideProgram::calculator)), "mate-calc");
}

TEST_F(Desk, GivesTheUsersEditorForPlainText) {
    install("featherpad");
    install("my-editor");
    write_entry("Exec=my-editor --new \"two words\" %U\n");
    write(path("bin/xdg-mime"), "#!/bin/sh\necho editor.desktop\n", true);
    auto const command = command_line_of(OutsideProgram::text_editor);
    EXPECT_EQ(name_of(command), "my-editor");
    ASSERT_TRUE(command);
    EXPECT_EQ(command->arguments, (QStringList{"--new", "two words"}));
}

TEST_F(Desk, WithoutADefaultGivesAUsualEditor) {
    install("mousepad");
    EXPECT_EQ(name_of(command_line_of(OutsideProgram::text_editor)), "mousepad");
}

TEST_F(Desk, StartsNoEditorWhereNobodyWouldSeeIt) {
    install("vi");
    write_entry("Exec=vi %F\nTerminal=true\n");
    EXPECT_FALSE(command_line_of_entry("editor.desktop"));
}

TEST_F(Desk, ReadsTheEntryAloneNotItsOtherActions) {
    install("my-editor");
    write_entry("Exec=my-editor\n[Desktop Action new]\nExec=my-editor --new-window\n");
    auto const command = command_line_of_entry("editor.desktop");
    ASSERT_TRUE(command);
    EXPECT_TRUE(command->arguments.isEmpty());
}

TEST_F(Desk, PassesOverAnEntryThatNamesNoProgram) {
    write_entry("Exec=gone %f\n");
    EXPECT_FALSE(command_line_of_entry("editor.desktop"));
    EXPECT_FALSE(command_line_of_entry("none.desktop"));
}

TEST_F(Desk, StartsTheProgramByThePathItWasStartedBy) {
    auto const command = command_line_of(OutsideProgram::navarun);
    ASSERT_TRUE(command);
    EXPECT_TRUE(QDir::isAbsolutePath(command->program));
    EXPECT_EQ(name_of(command), "test_desktop");
}

}  // namespace
}  // namespace navarun::test
