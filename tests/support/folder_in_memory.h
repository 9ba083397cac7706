// Where runs that write their files anew all the time have their folder.
#pragma once

#include <filesystem>
#include <string>

#include <unistd.h>

namespace navarun::test {

/// The path of a folder for this process alone, not made yet. In memory where there is some to
/// write to: it is the program that is tried, not the disk.
inline std::filesystem::path folder_in_memory(std::string const& name) {
    std::filesystem::path const memory{"/dev/shm"};
    bool const writable = ::access(memory.c_str(), W_OK | X_OK) == 0;
    return (writable ? memory : std::filesystem::temp_directory_path()) /
           (name + "-" + std::to_string(::getpid()));
}

}  // namespace navarun::test
