// The files of a folder as the browser lists them, and the search in a list.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace navarun {

/// Which files of a folder are listed, by the ends of their names.
using Endings = std::vector<std::string_view>;

/// The names of the files of `folder` with one of the endings, in any case, sorted by their
/// capital form in the code page, byte by byte. A folder that cannot be read has none.
std::vector<std::string> list_files(std::filesystem::path const& folder,
                                    Endings const& endings);

/// Whether `name` has one of the endings, in any case.
bool has_ending(std::string_view name, Endings const& endings);

/// Whether a character has no place in a file name, on this platform or another.
bool is_refused_in_file_names(char character);

/// Searches a list for the first entry that begins with `wanted`, or with `exact` is it,
/// whatever the case; after the place `start` (-1: from the top), and round to it.
/// @return the place from 0; -1 where there is none.
int SearchListBox(std::vector<std::string> const& list, std::string_view wanted, int start,
                  bool exact);

}  // namespace navarun
