// Files as they lie on the disk, put there and read past the program.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace navarun::test {

/// The bytes of a file; fails the test where it cannot be read.
inline std::string file_content(std::filesystem::path const& path) {
    std::ifstream file{path, std::ios::binary};
    EXPECT_TRUE(file) << path << " cannot be read";
    return {std::istreambuf_iterator<char>{file}, {}};
}

/// Writes a file; makes the folders that it needs.
inline void put_file(std::filesystem::path const& path, std::string_view bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file{path, std::ios::binary};
    file << bytes;
    file.close();
    EXPECT_TRUE(file) << path << " cannot be written";
}

/// What lies in a folder, by name.
inline std::vector<std::string> names_in(std::filesystem::path const& folder) {
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator{folder}) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace navarun::test
