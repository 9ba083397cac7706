// Where a benchmark's files lie.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace navarun {

/// A folder that nobody had before, gone with the benchmark.
class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = std::filesystem::temp_directory_path() / "navarun-bench-XXXXXX";
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error{"no folder " + name};
        m_path = name;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchFolder(ScratchFolder const&) = delete;
    ScratchFolder& operator=(ScratchFolder const&) = delete;

    std::filesystem::path const& path() const { return m_path; }

  private:
    std::filesystem::path m_path;
};

}  // namespace navarun
