// Texts kept beside the tests, compared byte for byte.
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace navarun::test {

inline std::string golden(std::string const& name) {
    std::ifstream file{std::string{GOLDEN_FOLDER} + "/" + name + ".txt", std::ios::binary};
    EXPECT_TRUE(file.is_open()) << name;
    return {std::istreambuf_iterator<char>{file}, {}};
}

inline std::vector<std::string> golden_lines(std::string const& name) {
    std::vector<std::string> lines;
    std::string line;
    for (char const c : golden(name)) {
        if (c == '\n') {
            lines.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }
    return lines;
}

}  // namespace navarun::test
