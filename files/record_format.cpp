// The nine fields, in their order.
#include "files/record_format.h"

#include <utility>

#include "files/delimited.h"

namespace navarun {

std::string record_bytes(Record const& record) {
    DelimitedWriter line;
    line.text(record.first_name).text(record.last_name);
    line.text(record.day).text(record.month).text(record.century).text(record.year);
    line.number(record.julian);
    if (auto const* const gone = std::get_if<bool>(&record.portrait)) {
        line.truth(*gone);
    } else {
        line.text(std::get<std::string>(record.portrait));
    }
    line.text(record.note).end_record();
    return line.bytes();
}

std::vector<Record> read_records(std::string bytes, std::string const& file) {
    DelimitedReader reader{std::move(bytes), file};
    std::vector<Record> records;
    while (!reader.at_end()) {
        Record& record = records.emplace_back();
        record.first_name = reader.read_text();
        record.last_name = reader.read_text();
        record.day = reader.read_text();
        record.month = reader.read_text();
        record.century = reader.read_text();
        record.year = reader.read_text();
        record.julian = reader.read_byte();
        record.portrait = reader.read_text();
        record.note = reader.read_text();
    }
    return records;
}

}  // namespace navarun
