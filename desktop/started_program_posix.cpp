// The program by the name under which it was called.
#include <QCoreApplication>
#include <QStandardPaths>

#include "desktop/started_program.h"

namespace navarun::desktop {

namespace {

// The file that a name calls: by its path, or along the search path. Who starts a program may
// give it any name; one that leads nowhere tells nothing, but the system knows the file.
std::filesystem::path file_of(std::filesystem::path const& called) {
    if (called.has_parent_path()) return std::filesystem::absolute(called);
    QString const found =
        QStandardPaths::findExecutable(QString::fromStdString(called.string()));
    if (!found.isEmpty()) return found.toStdString();
    return std::filesystem::read_symlink("/proc/self/exe");
}

}  // namespace

std::filesystem::path application_folder(char const* started_as) {
    return file_of(started_as).parent_path();
}

QString started_program() {
    QString const called = QCoreApplication::arguments().constFirst();
    return QString::fromStdString(file_of(called.toStdString()).string());
}

}  // namespace navarun::desktop
