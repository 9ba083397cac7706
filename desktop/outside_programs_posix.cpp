// Looking programs up by the desktop's own defaults.

#include <QDesktopServices>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTextStream>
#include <QUrl>
#include <array>

#include "desktop/outside_programs.h"
#include "desktop/started_program.h"

namespace navarun::desktop {

namespace {

// The running desktop's own comes first, then in this order.
struct UsualProgram {
    char const* desktop;  // as the session names it; empty for none
    char const* name;
};
constexpr std::array calculators{
    UsualProgram{"GNOME", "gnome-calculator"},
    UsualProgram{"KDE", "kcalc"},
    UsualProgram{"XFCE", "galculator"},
    UsualProgram{"MATE", "mate-calc"},
    UsualProgram{"X-Cinnamon", "gnome-calculator"},
    UsualProgram{"LXQt", "qalculate-qt"},
    UsualProgram{"LXDE", "galculator"},
    UsualProgram{"", "qalculate-gtk"},
    UsualProgram{"", "speedcrunch"},
    UsualProgram{"", "xcalc"},
};
// Where the desktop names no default for plain text.
constexpr std::array editors{
    UsualProgram{"GNOME", "gnome-text-editor"},
    UsualProgram{"GNOME", "gedit"},
    UsualProgram{"KDE", "kate"},
    UsualProgram{"KDE", "kwrite"},
    UsualProgram{"XFCE", "mousepad"},
    UsualProgram{"MATE", "pluma"},
    UsualProgram{"X-Cinnamon", "xed"},
    UsualProgram{"LXQt", "featherpad"},
    UsualProgram{"LXDE", "l3afpad"},
    UsualProgram{"", "leafpad"},
};

template <typename Programs>
std::optional<CommandLine> first_installed(Programs const& programs) {
    auto const running = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
    std::optional<CommandLine> found;
    for (UsualProgram const& usual : programs) {
        QString const file = QStandardPaths::findExecutable(QString::fromLatin1(usual.name));
        if (file.isEmpty()) continue;
        bool const own =
            *usual.desktop != '\0' && running.contains(QString::fromLatin1(usual.desktop));
        if (own) return CommandLine{file, {}};
        if (!found) found = CommandLine{file, {}};
    }
    return found;
}

std::optional<CommandLine> text_editor() {
    QProcess query;
    query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                             QStringLiteral("text/plain")});
    if (query.waitForFinished()) {
        QString const entry = QString::fromUtf8(query.readAllStandardOutput()).trimmed();
        if (auto command = command_line_of_entry(entry)) return command;
    }
    return first_installed(editors);
}

}  // namespace

std::optional<CommandLine> command_line_of_entry(QString const& name) {
    if (name.isEmpty()) return {};
    QString const path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, name);
    QFile file{path};
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QTextStream lines{&file};
    QString command;
    bool in_entry = false;
    for (QString line; lines.readLineInto(&line);) {
        if (line.startsWith(QLatin1Char('['))) {
            in_entry = line.trimmed() == QLatin1String("[Desktop Entry]");
        }
        if (!in_entry) continue;
        if (line.startsWith(QLatin1String("Exec="))) command = line.mid(5);
        // It would run where nobody sees it.
        if (line.trimmed() == QLatin1String("Terminal=true")) return {};
    }
    auto words = QProcess::splitCommand(command);
    words.removeIf([](QString const& word) { return word.startsWith(QLatin1Char('%')); });
    if (words.isEmpty()) return {};
    QString const program = QStandardPaths::findExecutable(words.takeFirst());
    if (program.isEmpty()) return {};
    return CommandLine{program, words};
}

std::optional<CommandLine> command_line_of(OutsideProgram wanted) {
    switch (wanted) {
        case OutsideProgram::text_editor:
            return text_editor();
        case OutsideProgram::calculator:
            return first_installed(calculators);
        case OutsideProgram::navarun:
            return CommandLine{started_program(), {}};
    }
    return {};
}

bool has_text_opener() {
    return !QStandardPaths::findExecutable(QStringLiteral("xdg-open")).isEmpty();
}

void open_text(QString const& file) { QDesktopServices::openUrl(QUrl::fromLocalFile(file)); }

}  // namespace navarun::desktop
