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
/// calculators the one of the running desktop, else the first that is installed. On Windows
/// the system's own.
/// @return empty where there is none.
std::optional<CommandLine> command_line_of(OutsideProgram wanted);

/// Whether the desktop has something that shows a text, and showing one with it.
bool has_text_opener();
void open_text(QString const& file);

/// The command of a desktop entry, without what stands for files. Only where desktops have
/// them.
/// @param name  of the entry: "org.gnome.TextEditor.desktop"
std::optional<CommandLine> command_line_of_entry(QString const& name);

}  // namespace navarun::desktop
