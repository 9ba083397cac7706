// The one text format of all files that the program writes: fields separated by a comma, a
// record closed by CR LF. Texts stand in double quotes as they are, numbers in bare digits,
// truth values as a word between two number signs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace navarun {

class DelimitedWriter {
  public:
    /// An inner double quote is not escaped and ends the field when it is read back.
    DelimitedWriter& text(std::string_view value);
    DelimitedWriter& number(int value);
    DelimitedWriter& truth(bool value);
    DelimitedWriter& end_record();

    /// What was written, in the code page of the files.
    std::string const& bytes() const { return m_bytes; }

  private:
    DelimitedWriter& field(std::string_view bytes);

    std::string m_bytes;
    bool m_record_begun = false;
};

/// Reads values one after the other; a comma closes one as well as a line end.
class DelimitedReader {
  public:
    /// @param bytes  the file, in the code page of the files
    /// @param file   its name, as a report names it
    DelimitedReader(std::string bytes, std::string file);

    bool at_end() const { return m_at >= m_bytes.size(); }
    /// A text, or the characters of a bare value. Throws FatalError past the end.
    std::string read_text();
    /// Throws FatalError past the end, and where the value is no number from 0 to 255.
    std::uint8_t read_byte();

  private:
    std::string read_value();
    /// Skips what closes a value.
    void close_value();

    std::string m_bytes;
    std::string m_file;
    std::size_t m_at = 0;
};

}  // namespace navarun
