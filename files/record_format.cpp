// The nine fields, in their order.
#include "files/record_format.h"

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

}  // namespace navarun
