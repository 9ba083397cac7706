// Reading a folder, and comparing names.
#include "files/file_list.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>

#include "core/code_page.h"
#include "core/text.h"
#include "files/folder_entries.h"

namespace navarun {

namespace {

// What names are compared by, put at the end of `keys`. Most names need no table: letters of
// ASCII alone.
void append_capital_form(std::string& keys, std::string_view name) {
    auto const begin = keys.size();
    keys.append(name);
    bool ascii = true;
    for (char& c : std::span{keys}.subspan(begin)) {
        if (static_cast<unsigned char>(c) >= 128) ascii = false;
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    }
    if (!ascii) keys.replace(begin, keys.npos, to_code_page(text::upper(name)));
}

std::string capital_form(std::string_view name) {
    std::string key;
    append_capital_form(key, name);
    return key;
}

// A name while its folder is sorted. A practice of many years has tens of thousands of them,
// and the practitioner waits: the keys lie in one text, and most pairs are told apart by the
// eight bytes that they begin with.
struct SortedName {
    std::uint64_t head;
    std::size_t key_begin;
    std::size_t key_length;
    std::size_t place;  // in the folder
};

// Ordered as the bytes are: the first weighs most, what is not there least.
std::uint64_t head_of(std::string_view key) {
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i) {
        head = head << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    }
    return head;
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
    return static_cast<unsigned char>(character) < ' ' || character == '\x7F' ||
           refused.find(character) != refused.npos;
}

std::vector<std::string> list_files(std::filesystem::path const& folder,
                                    Endings const& endings) {
    auto const listed = [&](std::string_view name) { return has_ending(name, endings); };
    auto found = names_of_files(folder, listed);
    std::string keys;
    std::vector<SortedName> order;
    order.reserve(found.size());
    for (std::size_t place = 0; place < found.size(); ++place) {
        auto const begin = keys.size();
        append_capital_form(keys, found[place]);
        order.push_back(
            {head_of(std::string_view{keys}.substr(begin)), begin, keys.size() - begin, place});
    }
    auto const key_of = [&](SortedName const& name) {
        return std::string_view{keys}.substr(name.key_begin, name.key_length);
    };
    std::ranges::sort(order, [&](SortedName const& one, SortedName const& other) {
        if (one.head != other.head) return one.head < other.head;
        int const by_key = key_of(one).compare(key_of(other));
        return by_key != 0 ? by_key < 0 : found[one.place] < found[other.place];
    });
    std::vector<std::string> names;
    names.reserve(order.size());
    for (auto const& name : order) names.push_back(std::move(found[name.place]));
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
