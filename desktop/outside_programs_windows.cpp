// The system's own programs, where Windows keeps them.
#include <QDir>
#include <QFile>
#include <QProcess>

#include "desktop/outside_programs.h"
#include "desktop/started_program.h"

namespace navarun::desktop {

namespace {

std::optional<CommandLine> of_the_system(QString const& name) {
    QString const folder = qEnvironmentVariable("SystemRoot", QStringLiteral("C:\\Windows"));
    QString const file = folder + QLatin1Char('\\') + name;
    if (!QFile::exists(file)) return {};
    return CommandLine{file, {}};
}

}  // namespace

std::optional<CommandLine> command_line_of(OutsideProgram wanted) {
    switch (wanted) {
        case OutsideProgram::text_editor:
            return of_the_system(QStringLiteral("notepad.exe"));
        case OutsideProgram::calculator:
            return of_the_system(QStringLiteral("System32\\calc.exe"));
        case OutsideProgram::navarun:
            return CommandLine{started_program(), {}};
    }
    return {};
}

bool has_text_opener() { return command_line_of(OutsideProgram::text_editor).has_value(); }

void open_text(QString const& file) {
    if (auto const editor = command_line_of(OutsideProgram::text_editor)) {
        QProcess::startDetached(editor->program, {QDir::toNativeSeparators(file)});
    }
}

}  // namespace navarun::desktop
