// The desktop's own text editor and calculator, and the program itself once more.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "shell/platform.h"

namespace navarun::desktop {

/// A program and its arguments.
struct CommandLine {
    QString program;
    QStringList arguments;
};

/// How the desktop starts the program wanted: the user's own choice for plain text; of the
/// calculators the one of the running desktop, else the first that is installed.
/// @return empty where there is none.
std::optional<CommandLine> command_line_of(OutsideProgram wanted);

/// The command of a desktop entry, without what stands for files.
/// @param name  of the entry: "org.gnome.TextEditor.desktop"
std::optional<CommandLine> command_line_of_entry(QString const& name);

}  // namespace navarun::desktop
