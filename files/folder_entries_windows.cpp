// Folders where names are UTF-16 and may be long.
#include "core/file_path.h"
#include "files/folder_entries.h"
#include "files/windows_calls.h"

namespace navarun {

std::wstring system_path(std::filesystem::path const& path) {
    auto full = path;
    if (!full.is_absolute()) {
        std::error_code unreadable;
        full = std::filesystem::current_path(unreadable) / full;
    }
    full = full.lexically_normal().make_preferred();
    std::wstring text = full.native();
    if (text.starts_with(LR"(\\?\)") || text.starts_with(LR"(\\.\)")) return text;
    if (!full.is_absolute()) return text;
    // What ends in a separator is a folder all the same; a disk keeps its own.
    if (text.ends_with(L'\\') && full.has_relative_path()) text.pop_back();
    if (text.starts_with(LR"(\\)")) return LR"(\\?\UNC)" + text.substr(1);
    return LR"(\\?\)" + text;
}

EntryKind kind_of(std::filesystem::path const& path) {
    DWORD const attributes = ::GetFileAttributesW(system_path(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return EntryKind::nothing;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? EntryKind::folder : EntryKind::file;
}

std::optional<bool> nothing_at(std::filesystem::path const& path) {
    if (kind_of(path) != EntryKind::nothing) return false;
    DWORD const error = ::GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return true;
    return {};
}

void make_folders(std::filesystem::path const& folder) {
    if (kind_of(folder) != EntryKind::nothing) return;
    auto const above = folder.parent_path();
    if (above != folder && !above.empty()) make_folders(above);
    if (folder.has_filename()) {
        ::CreateDirectoryW(system_path(folder).c_str(), nullptr);
    }
}

std::vector<std::string> names_of_files(std::filesystem::path const& folder,
                                        std::function<bool(std::string_view)> const& wanted) {
    std::vector<std::string> names;
    WIN32_FIND_DATAW entry;
    HANDLE const search =
        ::FindFirstFileExW((system_path(folder) + LR"(\*)").c_str(), FindExInfoBasic, &entry,
                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) continue;
        std::string name = path_text(entry.cFileName);
        // A name that no text can hold could not be opened again.
        if (file_path(name).native() != entry.cFileName || !wanted(name)) continue;
        names.push_back(std::move(name));
    } while (::FindNextFileW(search, &entry) != 0);
    ::FindClose(search);
    return names;
}

}  // namespace navarun
