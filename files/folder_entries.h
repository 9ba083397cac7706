// What stands in the folders, as the operating system tells it.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace navarun {

/// What a name stands for; what is no folder counts as a file. Links are followed.
enum class EntryKind { nothing, file, folder };

/// What stands at `path`; nothing also where the system does not let it be seen.
EntryKind kind_of(std::filesystem::path const& path);

/// Whether nothing stands at `path`; none where the system does not let it be seen.
std::optional<bool> nothing_at(std::filesystem::path const& path);

/// Makes a folder and those above it that are missing. One that cannot be made is not told.
void make_folders(std::filesystem::path const& folder);

/// The names of the plain files of `folder` that are `wanted`, in the order of the system. A
/// folder that cannot be read has none.
std::vector<std::string> names_of_files(std::filesystem::path const& folder,
                                        std::function<bool(std::string_view)> const& wanted);

}  // namespace navarun
