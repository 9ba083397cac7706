// What a consultation is as a file: one line of nine fields.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace navarun {

/// A portrait's file name without folder; a truth value where the portrait of a loaded record
/// was gone.
using PortraitName = std::variant<std::string, bool>;

struct Record {
    std::string first_name;
    std::string last_name;
    std::string day;  // two digits, as the three that follow
    std::string month;
    std::string century;
    std::string year;
    std::uint8_t julian = 0;  // 0 or 1
    PortraitName portrait;
    std::string note;
};

/// The bytes of the record file.
std::string record_bytes(Record const& record);

/// The records of a file; a well-formed one has one. A truth value in place of the portrait is
/// read as the text that it is written as. Throws FatalError where the file ends inside a
/// record or the Julian flag is no number from 0 to 255.
/// @param file  its name, as a report names it
std::vector<Record> read_records(std::string bytes, std::string const& file);

}  // namespace navarun
