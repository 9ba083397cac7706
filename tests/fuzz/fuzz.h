// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

/// One input of a target. Whatever it holds, the target comes back.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace navarun::fuzz {

inline std::string text_of(std::uint8_t const* data, std::size_t size) {
    return {reinterpret_cast<char const*>(data), size};
}

/// Ends the process where what must always hold does not.
inline void require(bool holds, char const* what) {
    if (holds) return;
    std::cerr << "does not hold: " << what << std::endl;
    std::abort();
}

}  // namespace navarun::fuzz
