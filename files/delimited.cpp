// Writing and reading of fields.
#include "files/delimited.h"

#include <algorithm>
#include <utility>

#include "core/code_page.h"
#include "core/text.h"
#include "files/failed_file.h"

namespace navarun {

DelimitedWriter& DelimitedWriter::field(std::string_view bytes) {
    if (std::exchange(m_record_begun, true)) m_bytes += ',';
    m_bytes += bytes;
    return *this;
}

DelimitedWriter& DelimitedWriter::text(std::string_view value) {
    return field('"' + to_code_page(value) + '"');
}

DelimitedWriter& DelimitedWriter::number(int value) { return field(std::to_string(value)); }

DelimitedWriter& DelimitedWriter::truth(bool value) {
    return field(value ? "#TRUE#" : "#FALSE#");
}

DelimitedWriter& DelimitedWriter::end_record() {
    m_bytes += text::line_break;
    m_record_begun = false;
    return *this;
}

DelimitedReader::DelimitedReader(std::string bytes, std::string file)
    : m_bytes{std::move(bytes)}, m_file{std::move(file)} {}

void DelimitedReader::close_value() {
    if (at_end()) return;
    char const closing = m_bytes[m_at];
    if (closing == ',' || closing == '\n') {
        ++m_at;
    } else if (closing == '\r') {
        ++m_at;
        if (!at_end() && m_bytes[m_at] == '\n') ++m_at;
    }
}

std::string DelimitedReader::read_value() {
    while (!at_end() && m_bytes[m_at] == ' ') ++m_at;
    if (at_end()) {
        fail(attempt::reading, m_file, "Le fichier finit trop tôt.");
    }
    if (m_bytes[m_at] == '"') {
        auto const start = m_at + 1;
        auto const quote = m_bytes.find('"', start);
        if (quote == std::string::npos) {
            fail(attempt::reading, m_file, "Le fichier finit au milieu d'un texte.");
        }
        std::string value = m_bytes.substr(start, quote - start);
        // A quote inside a text ends it; what follows is read as the next value.
        m_at = quote + 1;
        auto const closer = std::min(m_bytes.find_first_not_of(' ', m_at), m_bytes.size());
        bool const closed = closer == m_bytes.size() || m_bytes[closer] == ',' ||
                            m_bytes[closer] == '\r' || m_bytes[closer] == '\n';
        if (closed) m_at = closer;
        close_value();
        return value;
    }
    auto const end = std::min(m_bytes.find_first_of(",\r\n", m_at), m_bytes.size());
    std::string value = m_bytes.substr(m_at, end - m_at);
    m_at = end;
    close_value();
    return value;
}

std::string DelimitedReader::read_text() { return from_code_page(read_value()); }

std::uint8_t DelimitedReader::read_byte() {
    std::string value = read_value();
    while (value.ends_with(' ')) value.pop_back();
    bool const digits = !value.empty() &&
                        std::ranges::all_of(value, [](char c) { return c >= '0' && c <= '9'; });
    int const number = digits ? text::number_of(value) : -1;
    if (number < 0 || number > 255) {
        fail(attempt::reading, m_file,
             "« " + from_code_page(value) + " » n'est pas un nombre de 0 à 255.");
    }
    return static_cast<std::uint8_t>(number);
}

}  // namespace navarun
