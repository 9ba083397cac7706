// Files that survive: a write goes to a new file beside the old one, is flushed to the disk and
// takes the old one's place by a rename, so that a failed or interrupted write leaves the old
// file whole. Each system has a form of its own, durable_file_posix and durable_file_windows;
// beside folder_entries the only places that call the operating system itself.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace navarun {

/// The file that a write goes to until it is whole: one fixed name a folder, which no pattern
/// of the program lists.
inline constexpr std::string_view unfinished_file = "navarun.tmp";

/// The whole content. Throws FatalError where it cannot be read.
/// @param shown_as  the file's name, as a report names it
std::string read_file(std::filesystem::path const& path, std::string const& shown_as);

/// Writes the whole content, replacing any file of that name. Throws FatalError where it cannot
/// be written; the old file then stands as it was, or where only its lasting is in doubt, the
/// new one, whole.
void write_file(std::filesystem::path const& path, std::string_view bytes,
                std::string const& shown_as);

/// Like write_file, but leaves a file of that name as it is.
/// @return false where there is one; nothing has been written then.
bool write_new_file(std::filesystem::path const& path, std::string_view bytes,
                    std::string const& shown_as);

/// Moves a file, replacing any file of the target's name. Throws FatalError where it cannot be
/// moved, or not with certainty; it then stands whole in one of the two places.
void move_file(std::filesystem::path const& source, std::filesystem::path const& target,
               std::string const& shown_as);

/// Throws FatalError where the file cannot be deleted.
void delete_file(std::filesystem::path const& path, std::string const& shown_as);

/// Removes what a killed run left behind in `folder`. Nothing happens where there is nothing.
void remove_unfinished_file(std::filesystem::path const& folder);

/// Keeps a second program out of a folder for as long as it lives. The system lets go of it
/// when the program ends, however it ends.
class FolderLock {
  public:
    FolderLock() = default;
    ~FolderLock();
    FolderLock(FolderLock const&) = delete;
    FolderLock& operator=(FolderLock const&) = delete;

    /// @return false where another program holds the folder. A folder that cannot be locked for
    ///         another reason is free.
    bool take(std::filesystem::path const& folder);

  private:
    /// What the system calls the hold; -1 where there is none.
    std::intptr_t m_held = -1;
};

}  // namespace navarun
