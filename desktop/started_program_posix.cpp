// The program by the name under which it was called.
#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "desktop/started_program.h"

namespace navarun::desktop {

std::filesystem::path application_folder(char const* started_as) {
    std::filesystem::path path{started_as};
    if (!path.has_parent_path()) {
        // Found along the search path.
        path = QStandardPaths::findExecutable(QString::fromLocal8Bit(started_as)).toStdString();
    }
    return std::filesystem::absolute(path).parent_path();
}

QString started_program() {
    return QDir::current().absoluteFilePath(QCoreApplication::arguments().constFirst());
}

}  // namespace navarun::desktop
