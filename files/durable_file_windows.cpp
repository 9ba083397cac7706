// The operating system's calls where names are UTF-16, each result looked at.
#include <algorithm>
#include <array>

#include "files/durable_file.h"
#include "files/failed_file.h"
#include "files/folder_entries.h"
#include "files/windows_calls.h"

namespace navarun {

namespace {

struct Reason {
    DWORD number;
    char const* text;
};

constexpr char const* another_program_has_it =
    "Un autre programme tient ce fichier ouvert : fermez-le là, puis recommencez.";
constexpr char const* disk_is_not_there = "Le disque n'est pas prêt.";
constexpr char const* network_is_gone = "Le réseau ne répond pas.";

// The compiler's headers lack its name.
constexpr DWORD disk_quota_exceeded = 1295;

// What a practitioner reads; rarer reasons are told by their number.
constexpr std::array<Reason, 25> reasons{{
    {ERROR_DISK_FULL, reason::disk_is_full},
    {ERROR_HANDLE_DISK_FULL, reason::disk_is_full},
    {disk_quota_exceeded, reason::share_is_full},
    {ERROR_ACCESS_DENIED, reason::access_is_denied},
    {ERROR_WRITE_PROTECT, reason::disk_is_protected},
    {ERROR_IO_DEVICE, reason::disk_has_failed},
    {ERROR_CRC, reason::disk_has_failed},
    {ERROR_SEEK, reason::disk_has_failed},
    {ERROR_SECTOR_NOT_FOUND, reason::disk_has_failed},
    {ERROR_WRITE_FAULT, reason::disk_has_failed},
    {ERROR_READ_FAULT, reason::disk_has_failed},
    {ERROR_GEN_FAILURE, reason::disk_has_failed},
    {ERROR_NOT_READY, disk_is_not_there},
    {ERROR_INVALID_DRIVE, disk_is_not_there},
    {ERROR_WRONG_DISK, disk_is_not_there},
    {ERROR_BAD_NETPATH, network_is_gone},
    {ERROR_NETNAME_DELETED, network_is_gone},
    {ERROR_UNEXP_NET_ERR, network_is_gone},
    {ERROR_FILE_NOT_FOUND, reason::file_is_missing},
    {ERROR_PATH_NOT_FOUND, reason::file_is_missing},
    {ERROR_DIRECTORY, reason::file_in_place_of_folder},
    {ERROR_FILENAME_EXCED_RANGE, reason::name_is_too_long},
    {ERROR_TOO_MANY_OPEN_FILES, reason::too_many_open_files},
    {ERROR_SHARING_VIOLATION, another_program_has_it},
    {ERROR_LOCK_VIOLATION, another_program_has_it},
}};

std::string reason_of(DWORD number) {
    for (auto const& row : reasons) {
        if (row.number == number) return row.text;
    }
    return reason::by_number(number);
}

// A file that another program is busy with is mostly let go of at once: what looks for viruses
// or makes copies opens each new file for a moment.
constexpr int attempts = 10;
constexpr DWORD pause_between = 50;  // milliseconds

bool is_held(DWORD number) {
    return number == ERROR_SHARING_VIOLATION || number == ERROR_LOCK_VIOLATION;
}

HANDLE open_once(std::filesystem::path const& path, DWORD access, DWORD shared,
                 DWORD creation) {
    return ::CreateFileW(system_path(path).c_str(), access, shared, nullptr, creation,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

HANDLE open_file(std::filesystem::path const& path, DWORD access, DWORD shared,
                 DWORD creation) {
    HANDLE handle = open_once(path, access, shared, creation);
    for (int i = 1; i < attempts; ++i) {
        if (handle != INVALID_HANDLE_VALUE || !is_held(::GetLastError())) break;
        ::Sleep(pause_between);
        handle = open_once(path, access, shared, creation);
    }
    return handle;
}

constexpr DWORD shared_with_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// The system refuses to replace or delete a file in use as if it were a matter of rights, and
// so it does with a folder; this tells them apart.
DWORD true_error(DWORD number, std::filesystem::path const& path) {
    constexpr std::size_t longest_name = 255;
    if (path.filename().native().size() > longest_name) return ERROR_FILENAME_EXCED_RANGE;
    if (number == ERROR_PATH_NOT_FOUND) {
        for (auto above = path.parent_path(); above.has_relative_path();
             above = above.parent_path()) {
            if (kind_of(above) == EntryKind::file) return ERROR_DIRECTORY;
        }
    }
    if (number != ERROR_ACCESS_DENIED) return number;
    Handle const probe{open_once(path, DELETE, shared_with_all, OPEN_EXISTING)};
    DWORD const probed = probe.is_open() ? ERROR_SUCCESS : ::GetLastError();
    return is_held(probed) ? probed : number;
}

[[noreturn]] void fail_at(char const* attempted, std::string const& file,
                          std::filesystem::path const& path, DWORD number) {
    DWORD const known = true_error(number, path);
    bool const folder = known == ERROR_ACCESS_DENIED && kind_of(path) == EntryKind::folder;
    fail(attempted, file, folder ? reason::folder_in_place_of_file : reason_of(known));
}

// Runs a call that changes the name of `path` until the file is let go of.
// @return the system's error, ERROR_SUCCESS where there is none
template <typename Call>
DWORD error_of(std::filesystem::path const& path, Call const& call) {
    DWORD number = ERROR_SUCCESS;
    for (int i = 0; i < attempts; ++i) {
        if (i > 0) ::Sleep(pause_between);
        if (call() != 0) return ERROR_SUCCESS;
        number = true_error(::GetLastError(), path);
        if (!is_held(number)) return number;
    }
    return number;
}

// A record from a disc comes marked read-only; it is replaced and deleted all the same, for the
// practitioner was asked. The mark comes back on what then stands there.
class MarkTakenOff {
  public:
    explicit MarkTakenOff(std::filesystem::path path)
        : m_path{std::move(path)},
          m_attributes{::GetFileAttributesW(system_path(m_path).c_str())} {
        if (is_marked()) set(m_attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
    ~MarkTakenOff() {
        if (is_marked()) set(m_attributes);
    }
    MarkTakenOff(MarkTakenOff const&) = delete;
    MarkTakenOff& operator=(MarkTakenOff const&) = delete;
    void forget() { m_attributes = INVALID_FILE_ATTRIBUTES; }

  private:
    bool is_marked() const {
        constexpr DWORD marks = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
        return m_attributes != INVALID_FILE_ATTRIBUTES &&
               (m_attributes & marks) == FILE_ATTRIBUTE_READONLY;
    }
    void set(DWORD attributes) const {
        ::SetFileAttributesW(system_path(m_path).c_str(), attributes);
    }

    std::filesystem::path m_path;
    DWORD m_attributes;
};

enum class Existing { replaced, kept };

// Write-through: the change of names has reached the disk when the call returns.
DWORD rename_error(std::filesystem::path const& source, std::filesystem::path const& target,
                   Existing existing) {
    DWORD const replace = existing == Existing::replaced ? MOVEFILE_REPLACE_EXISTING : 0;
    return error_of(target, [&] {
        return ::MoveFileExW(system_path(source).c_str(), system_path(target).c_str(),
                             replace | MOVEFILE_WRITE_THROUGH);
    });
}

bool write_all(HANDLE file, std::string_view bytes) {
    constexpr std::size_t most_at_once = 1U << 20U;
    while (!bytes.empty()) {
        DWORD written = 0;
        auto const wanted = static_cast<DWORD>(std::min(bytes.size(), most_at_once));
        if (::WriteFile(file, bytes.data(), wanted, &written, nullptr) == 0) return false;
        if (written == 0) ::SetLastError(ERROR_WRITE_FAULT);
        if (written == 0) return false;
        bytes.remove_prefix(written);
    }
    return true;
}

// Removes the unfinished file again when the write fails.
class Unfinished {
  public:
    explicit Unfinished(std::filesystem::path path) : m_path{std::move(path)} {}
    ~Unfinished() {
        if (!m_path.empty()) ::DeleteFileW(system_path(m_path).c_str());
    }
    Unfinished(Unfinished const&) = delete;
    Unfinished& operator=(Unfinished const&) = delete;
    void keep() { m_path.clear(); }

  private:
    std::filesystem::path m_path;
};

// @return the system's error, ERROR_SUCCESS where the bytes lie on the disk
DWORD write_error(std::filesystem::path const& path, std::string_view bytes) {
    Handle file{open_file(path, GENERIC_WRITE, 0, CREATE_ALWAYS)};
    bool const done = file.is_open() && write_all(file.get(), bytes) &&
                      ::FlushFileBuffers(file.get()) != 0 && file.close();
    return done ? ERROR_SUCCESS : ::GetLastError();
}

// Who may read the file is told by its folder, as everywhere on Windows.
// False where a file is there that is kept.
bool write_whole(std::filesystem::path const& path, std::string_view bytes,
                 std::string const& shown_as, Existing existing) {
    auto const unfinished_path = path.parent_path() / unfinished_file;
    DWORD const not_written = write_error(unfinished_path, bytes);
    Unfinished unfinished{unfinished_path};
    if (not_written != ERROR_SUCCESS) {
        fail_at(attempt::writing, shown_as, unfinished_path, not_written);
    }
    MarkTakenOff const old{path};
    DWORD const not_renamed = rename_error(unfinished_path, path, existing);
    bool const is_there =
        not_renamed == ERROR_ALREADY_EXISTS || not_renamed == ERROR_FILE_EXISTS;
    if (existing == Existing::kept && is_there) return false;
    if (not_renamed != ERROR_SUCCESS) fail_at(attempt::writing, shown_as, path, not_renamed);
    unfinished.keep();
    return true;
}

}  // namespace

std::string read_file(std::filesystem::path const& path, std::string const& shown_as) {
    Handle const file{open_file(path, GENERIC_READ, shared_with_all, OPEN_EXISTING)};
    if (!file.is_open()) fail_at(attempt::reading, shown_as, path, ::GetLastError());
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) {
        fail(attempt::reading, shown_as, reason::is_no_file);
    }
    std::string bytes;
    std::array<char, 16384> block{};
    while (true) {
        DWORD count = 0;
        if (::ReadFile(file.get(), block.data(), block.size(), &count, nullptr) == 0) {
            fail_at(attempt::reading, shown_as, path, ::GetLastError());
        }
        if (count == 0) return bytes;
        bytes.append(block.data(), count);
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
    MarkTakenOff replaced{target};
    DWORD const number = rename_error(source, target, Existing::replaced);
    if (number == ERROR_SUCCESS) return replaced.forget();
    if (number == ERROR_NOT_SAME_DEVICE) {
        write_file(target, read_file(source, shown_as), shown_as);
        delete_file(source, shown_as);
        return;
    }
    // Whichever of the two is in use or in the way.
    bool const source_is_held = is_held(true_error(number, source));
    fail_at(attempt::moving, shown_as, source_is_held ? source : target, number);
}

void delete_file(std::filesystem::path const& path, std::string const& shown_as) {
    MarkTakenOff const old{path};
    auto const number =
        error_of(path, [&] { return ::DeleteFileW(system_path(path).c_str()); });
    if (number != ERROR_SUCCESS) fail_at(attempt::deleting, shown_as, path, number);
}

void remove_unfinished_file(std::filesystem::path const& folder) {
    ::DeleteFileW(system_path(folder / unfinished_file).c_str());
}

FolderLock::~FolderLock() {
    if (m_held != -1) ::CloseHandle(reinterpret_cast<HANDLE>(m_held));
}

// A name that the whole machine shares, made of what the disk calls the folder, so that two
// spellings of its path are one. No file is left in the folder.
bool FolderLock::take(std::filesystem::path const& folder) {
    Handle const directory{::CreateFileW(system_path(folder).c_str(), 0, shared_with_all,
                                         nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS,
                                         nullptr)};
    BY_HANDLE_FILE_INFORMATION identity;
    if (!directory.is_open() || ::GetFileInformationByHandle(directory.get(), &identity) == 0) {
        return true;
    }
    std::wstring name = L"Global\\N.A.V.A.R.U.N";
    for (DWORD const part :
         {identity.dwVolumeSerialNumber, identity.nFileIndexHigh, identity.nFileIndexLow}) {
        name += L"-" + std::to_wstring(part);
    }
    HANDLE const mutex = ::CreateMutexW(nullptr, FALSE, name.c_str());
    DWORD const number = ::GetLastError();
    // Another user's program holds it where its name may not even be opened.
    if (mutex == nullptr) return number != ERROR_ACCESS_DENIED;
    if (number == ERROR_ALREADY_EXISTS) {
        ::CloseHandle(mutex);
        return false;
    }
    m_held = reinterpret_cast<std::intptr_t>(mutex);
    return true;
}

}  // namespace navarun
