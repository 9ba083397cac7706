// Reading a folder, and comparing names.
#include "files/file_list.h"

#include <algorithm>
#include <utility>

#include "core/code_page.h"
#include "core/text.h"
#include "files/folder_entries.h"

namespace navarun {

namespace {

// What names are compared by. Most names need no table: letters of ASCII alone.
std::string capital_form(std::string_view name) {
    std::string key{name};
    bool ascii = true;
    for (char& c : key) {
        if (static_cast<unsigned char>(c) >= 128) ascii = false;
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    }
    return ascii ? key : to_code_page(text::upper(name));
}

bool ends_with_ignoring_case(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() &&
           std::ranges::equal(
               name.substr(name.size() - ending.size()), ending, [](char one, char other) {
                   auto const small = [](char c) {
                       return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
                   };
                   return small(one) == small(other);
               });
}

}  // namespace

bool has_ending(std::string_view name, Endings const& endings) {
    return std::ranges::any_of(endings, [&](std::string_view ending) {
        return ends_with_ignoring_case(name, ending);
    });
}

bool is_refused_in_file_names(char character) {
    constexpr std::string_view refused = "/\\:*?\"<>|";
    return static_cast<unsigned char>(character) < ' ' ||
           refused.find(character) != refused.npos;
}

std::vector<std::string> list_files(std::filesystem::path const& folder,
                                    Endings const& endings) {
    std::vector<std::pair<std::string, std::string>> keyed;
    auto const listed = [&](std::string_view name) { return has_ending(name, endings); };
    for (auto& name : names_of_files(folder, listed)) {
        std::string key = capital_form(name);
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::ranges::sort(keyed);
    std::vector<std::string> names;
    names.reserve(keyed.size());
    for (auto& [key, name] : keyed) names.push_back(std::move(name));
    return names;
}

int SearchListBox(std::vector<std::string> const& list, std::string_view wanted, int start,
                  bool exact) {
    std::string const key = capital_form(wanted);
    int const count = static_cast<int>(list.size());
    for (int step = 1; step <= count; ++step) {
        int const place = (start + step) % count;
        std::string const entry = capital_form(list[static_cast<std::size_t>(place)]);
        if (exact ? entry == key : entry.starts_with(key)) return place;
    }
    return -1;
}

}  // namespace navarun
