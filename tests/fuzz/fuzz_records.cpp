// Any bytes as a record file: read, or refused; what was read is written and read back equal.
#include <algorithm>

#include "core/fatal_error.h"
#include "files/record_format.h"
#include "tests/fuzz/fuzz.h"

namespace {

bool has_quote(navarun::Record const& record) {
    auto const quoted = [](std::string const& text) {
        return text.find('"') != std::string::npos;
    };
    return quoted(record.first_name) || quoted(record.last_name) || quoted(record.day) ||
           quoted(record.month) || quoted(record.century) || quoted(record.year) ||
           quoted(std::get<std::string>(record.portrait)) || quoted(record.note);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using navarun::fuzz::require;
    std::vector<navarun::Record> records;
    try {
        records = navarun::read_records(navarun::fuzz::text_of(data, size), "essai");
    } catch (navarun::FatalError const&) {
        return 0;
    }
    for (auto const& record : records) {
        if (has_quote(record)) continue;
        auto const back = navarun::read_records(navarun::record_bytes(record), "essai");
        require(back.size() == 1, "one record");
        require(back[0].first_name == record.first_name, "first name");
        require(back[0].last_name == record.last_name, "last name");
        require(back[0].day == record.day && back[0].month == record.month, "day and month");
        require(back[0].century == record.century && back[0].year == record.year, "year");
        require(back[0].julian == record.julian, "calendar");
        require(back[0].portrait == record.portrait, "portrait");
        require(back[0].note == record.note, "note");
    }
    return 0;
}
