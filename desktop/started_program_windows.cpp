// The program by its own file: its call comes in the code page of the machine, which may lack
// letters of the folder's name.
#include <QCoreApplication>
#include <QDir>
#include <vector>

#include "desktop/started_program.h"
#include "files/windows_calls.h"

namespace navarun::desktop {

std::filesystem::path application_folder(char const*) {
    std::vector<wchar_t> name(MAX_PATH);
    auto const space = [&] { return static_cast<DWORD>(name.size()); };
    // A name that fills the space to its end was cut.
    while (::GetModuleFileNameW(nullptr, name.data(), space()) == space()) {
        name.resize(name.size() * 2);
    }
    return std::filesystem::path{name.data()}.parent_path();
}

QString started_program() {
    return QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
}

}  // namespace navarun::desktop
