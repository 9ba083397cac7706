// What the files of the Windows form share: the system's header with nothing that it would
// define over the house's names, and its spelling of a path.
#pragma once

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <filesystem>
#include <string>

#include <windows.h>

namespace navarun {

/// `path` as the system's calls take it: absolute, with the prefix that lifts the limit of 260
/// characters and lets no device stand for a file ("AUX. Jean.fcy" is a record like any other).
std::wstring system_path(std::filesystem::path const& path);

/// Closes what it holds with the block that holds it.
class Handle {
  public:
    explicit Handle(HANDLE handle) : m_handle{handle} {}
    ~Handle() { close(); }
    Handle(Handle const&) = delete;
    Handle& operator=(Handle const&) = delete;

    HANDLE get() const { return m_handle; }
    bool is_open() const { return m_handle != INVALID_HANDLE_VALUE; }
    /// Closes it early; false where that failed.
    bool close() {
        HANDLE const handle = m_handle;
        m_handle = INVALID_HANDLE_VALUE;
        return handle == INVALID_HANDLE_VALUE || ::CloseHandle(handle) != 0;
    }

  private:
    HANDLE m_handle;
};

}  // namespace navarun
