// The operating system's calls where names are bytes, each result looked at.
#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "files/durable_file.h"
#include "files/failed_file.h"

namespace navarun {

namespace {

struct Reason {
    int number;
    char const* text;
};

// What a practitioner reads; rarer reasons are told by their number.
constexpr std::array<Reason, 13> reasons{{
    {ENOSPC, reason::disk_is_full},
    {EDQUOT, reason::share_is_full},
    {EACCES, reason::access_is_denied},
    {EPERM, reason::access_is_denied},
    {EROFS, reason::disk_is_protected},
    {EIO, reason::disk_has_failed},
    {ENOENT, reason::file_is_missing},
    {ENOTDIR, reason::file_in_place_of_folder},
    {EISDIR, reason::folder_in_place_of_file},
    {ENODEV, reason::is_no_file},
    {ENAMETOOLONG, reason::name_is_too_long},
    {EMFILE, reason::too_many_open_files},
    {ENFILE, reason::too_many_open_files},
}};

std::string reason_of(int number) {
    for (auto const& row : reasons) {
        if (row.number == number) return row.text;
    }
    return reason::by_number(static_cast<unsigned long>(number));
}

[[noreturn]] void fail(char const* attempted, std::string const& file, int number) {
    navarun::fail(attempted, file, reason_of(number));
}

// An open file, closed with the block that holds it.
class Descriptor {
  public:
    explicit Descriptor(int number) : m_number{number} {}
    ~Descriptor() {
        if (m_number >= 0) ::close(m_number);
    }
    Descriptor(Descriptor const&) = delete;
    Descriptor& operator=(Descriptor const&) = delete;

    int number() const { return m_number; }
    bool is_open() const { return m_number >= 0; }
    /// Closes it and tells whether that failed. Interrupted, it is closed all the same.
    bool close_fails() { return ::close(std::exchange(m_number, -1)) != 0 && errno != EINTR; }

  private:
    int m_number;
};

int open_file(std::filesystem::path const& path, int flags) {
    int number = 0;
    do {
        number = ::open(path.c_str(), flags | O_CLOEXEC, 0666);
    } while (number < 0 && errno == EINTR);
    return number;
}

bool write_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        auto const written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written == 0) errno = EIO;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool flush(int descriptor) {
    int failed = 0;
    do {
        failed = ::fsync(descriptor);
    } while (failed != 0 && errno == EINTR);
    return failed == 0;
}

// Removes the unfinished file again when the write fails.
class Unfinished {
  public:
    explicit Unfinished(std::filesystem::path path) : m_path{std::move(path)} {}
    ~Unfinished() {
        if (!m_path.empty()) ::unlink(m_path.c_str());
    }
    Unfinished(Unfinished const&) = delete;
    Unfinished& operator=(Unfinished const&) = delete;
    void keep() { m_path.clear(); }

  private:
    std::filesystem::path m_path;
};

// A change of names reaches the disk with its folder. Some shared folders cannot be flushed;
// there the name changed is all that can be had.
void flush_folder(std::filesystem::path const& folder, char const* attempted,
                  std::string const& shown_as) {
    Descriptor const directory{open_file(folder, O_RDONLY | O_DIRECTORY)};
    bool const flushed = directory.is_open() && flush(directory.number());
    if (!flushed && errno != EINVAL && errno != ENOTSUP) fail(attempted, shown_as, errno);
}

// Whom the file at `path` is closed to, the open one is closed to as well. True also where
// there is no file; a disk of another owner allows no change, and needs none where they are
// equal.
bool takes_rights_of(std::filesystem::path const& path, int descriptor) {
    constexpr mode_t rights = 07777;
    struct stat old {};
    if (::stat(path.c_str(), &old) != 0) return true;
    struct stat now {};
    if (::fstat(descriptor, &now) != 0) return false;
    if (((old.st_mode ^ now.st_mode) & rights) == 0) return true;
    return ::fchmod(descriptor, old.st_mode & rights) == 0;
}

enum class Existing { replaced, kept };

int rename_to(std::filesystem::path const& from, std::filesystem::path const& to,
              Existing existing) {
    if (existing == Existing::kept) {
        int const renamed =
            ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
        // Some disks know no such rename. There what was looked at before has to do.
        if (renamed == 0 || (errno != EINVAL && errno != ENOSYS)) return renamed;
    }
    return ::rename(from.c_str(), to.c_str());
}

// False where a file is there that is kept.
bool write_whole(std::filesystem::path const& path, std::string_view bytes,
                 std::string const& shown_as, Existing existing) {
    auto const folder = path.parent_path();
    auto const unfinished_path = folder / unfinished_file;
    Descriptor file{open_file(unfinished_path, O_WRONLY | O_CREAT | O_TRUNC)};
    if (!file.is_open()) fail(attempt::writing, shown_as, errno);
    Unfinished unfinished{unfinished_path};
    if (!takes_rights_of(path, file.number())) fail(attempt::writing, shown_as, errno);
    if (!write_all(file.number(), bytes)) fail(attempt::writing, shown_as, errno);
    if (!flush(file.number())) fail(attempt::writing, shown_as, errno);
    if (file.close_fails()) fail(attempt::writing, shown_as, errno);
    if (rename_to(unfinished_path, path, existing) != 0) {
        if (existing == Existing::kept && errno == EEXIST) return false;
        fail(attempt::writing, shown_as, errno);
    }
    unfinished.keep();
    flush_folder(folder, attempt::writing, shown_as);
    return true;
}

}  // namespace

std::string read_file(std::filesystem::path const& path, std::string const& shown_as) {
    // Without waiting: what is no file must not keep the program for ever.
    Descriptor const file{open_file(path, O_RDONLY | O_NONBLOCK)};
    if (!file.is_open()) fail(attempt::reading, shown_as, errno);
    struct stat kind {};
    if (::fstat(file.number(), &kind) != 0) fail(attempt::reading, shown_as, errno);
    if (S_ISDIR(kind.st_mode)) fail(attempt::reading, shown_as, EISDIR);
    if (!S_ISREG(kind.st_mode)) fail(attempt::reading, shown_as, ENODEV);
    std::string bytes;
    std::array<char, 16384> block{};
    while (true) {
        auto const count = ::read(file.number(), block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(attempt::reading, shown_as, errno);
        if (count == 0) return bytes;
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
}

void write_file(std::filesystem::path const& path, std::string_view bytes,
                std::string const& shown_as) {
    write_whole(path, bytes, shown_as, Existing::replaced);
}

bool write_new_file(std::filesystem::path const& path, std::string_view bytes,
                    std::string const& shown_as) {
    return write_whole(path, bytes, shown_as, Existing::kept);
}

void move_file(std::filesystem::path const& source, std::filesystem::path const& target,
               std::string const& shown_as) {
    if (::rename(source.c_str(), target.c_str()) != 0) {
        if (errno != EXDEV) fail(attempt::moving, shown_as, errno);
        // The folders lie on two disks.
        write_file(target, read_file(source, shown_as), shown_as);
        delete_file(source, shown_as);
        return;
    }
    flush_folder(target.parent_path(), attempt::moving, shown_as);
    flush_folder(source.parent_path(), attempt::moving, shown_as);
}

void delete_file(std::filesystem::path const& path, std::string const& shown_as) {
    if (::unlink(path.c_str()) != 0) fail(attempt::deleting, shown_as, errno);
    flush_folder(path.parent_path(), attempt::deleting, shown_as);
}

void remove_unfinished_file(std::filesystem::path const& folder) {
    std::error_code ignored;
    std::filesystem::remove(folder / unfinished_file, ignored);
}

FolderLock::~FolderLock() {
    if (m_held >= 0) ::close(static_cast<int>(m_held));
}

bool FolderLock::take(std::filesystem::path const& folder) {
    int const descriptor = open_file(folder, O_RDONLY | O_DIRECTORY);
    if (descriptor < 0) return true;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        ::close(descriptor);
        return false;
    }
    m_held = descriptor;
    return true;
}

}  // namespace navarun
