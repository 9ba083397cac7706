// Folders where names are bytes.
#include <dirent.h>

#include "files/folder_entries.h"

namespace navarun {

namespace {

// Asks the disk for a file of its own only where the folder does not tell.
bool is_plain_file(std::filesystem::path const& folder, dirent const& entry) {
    if (entry.d_type == DT_REG) return true;
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return false;
    std::error_code unreadable;
    return std::filesystem::is_regular_file(folder / entry.d_name, unreadable);
}

}  // namespace

EntryKind kind_of(std::filesystem::path const& path) {
    std::error_code unreadable;
    auto const status = std::filesystem::status(path, unreadable);
    if (!std::filesystem::exists(status)) return EntryKind::nothing;
    return std::filesystem::is_directory(status) ? EntryKind::folder : EntryKind::file;
}

std::optional<bool> nothing_at(std::filesystem::path const& path) {
    std::error_code unreadable;
    auto const kind = std::filesystem::status(path, unreadable).type();
    if (kind == std::filesystem::file_type::none) return {};
    return kind == std::filesystem::file_type::not_found;
}

void make_folders(std::filesystem::path const& folder) {
    std::error_code not_looked_at;
    std::filesystem::create_directories(folder, not_looked_at);
}

std::vector<std::string> names_of_files(std::filesystem::path const& folder,
                                        std::function<bool(std::string_view)> const& wanted) {
    std::vector<std::string> names;
    if (DIR* const directory = ::opendir(folder.c_str())) {
        while (dirent const* const entry = ::readdir(directory)) {
            if (!wanted(entry->d_name) || !is_plain_file(folder, *entry)) continue;
            names.emplace_back(entry->d_name);
        }
        ::closedir(directory);
    }
    return names;
}

}  // namespace navarun
