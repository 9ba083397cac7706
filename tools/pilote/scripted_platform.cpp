// The scripted clock and boxes.
#include "tools/pilote/scripted_platform.h"

#include <cmath>
#include <utility>

#include "core/code_page.h"
#include "core/file_path.h"
#include "files/durable_file.h"
#include "tools/pilote/page_json.h"
#include "tools/pilote/picture_header.h"

namespace navarun::pilot {

namespace {

constexpr double seconds_of_day = 86400;

// Waits come as single-precision numbers; their decimals are the ones meant.
Json seconds_as_meant(double seconds) {
    double const rounded = std::round(seconds * 1e6) / 1e6;
    if (rounded == std::floor(rounded)) return static_cast<int>(rounded);
    return rounded;
}

}  // namespace

void ScriptedPlatform::set_clock(Date today, double seconds) {
    m_today = today;
    m_seconds = seconds;
}

void ScriptedPlatform::wait(double seconds, std::string_view shown_message) {
    if (shown_message.empty()) {
        m_effects.push_back({{"kind", "pause"}, {"seconds", seconds_as_meant(seconds)}});
    } else {
        m_effects.push_back({{"kind", "message"},
                             {"text", shown_message},
                             {"seconds", seconds_as_meant(seconds)}});
    }
    if (m_during_wait) m_during_wait();
    m_seconds += seconds;
    while (m_seconds >= seconds_of_day) {
        m_seconds -= seconds_of_day;
        m_today += std::chrono::days{1};
    }
}

Answer ScriptedPlatform::box(std::string_view title, std::string_view text,
                             BoxButtons buttons) {
    Answer const answer = buttons == BoxButtons::ok_cancel ? next_answer() : Answer::ok;
    m_effects.push_back({{"kind", "box"},
                         {"title", title},
                         {"text", text},
                         {"answer", static_cast<int>(answer)}});
    return answer;
}

Answer ScriptedPlatform::next_answer() {
    if (m_answers.empty()) return Answer::ok;
    Answer const answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

Answer ScriptedPlatform::printer_dialog() {
    Answer const answer = next_answer();
    m_effects.push_back({{"kind", "printer-dialog"}, {"answer", static_cast<int>(answer)}});
    return answer;
}

void ScriptedPlatform::print(std::vector<screen::Page> const& pages) {
    for (auto const& page : pages) record_page("printer", page);
    m_effects.push_back({{"kind", "document"}});
}

void ScriptedPlatform::record_page(std::string_view target, screen::Page const& page) {
    m_pages.push_back(page_as_json(target, page));
}

void ScriptedPlatform::open(std::string_view target) {
    m_effects.push_back({{"kind", "open"}, {"target", target}});
}

void ScriptedPlatform::open_file(std::filesystem::path const&, std::string_view shown_as) {
    open(shown_as);
}

void ScriptedPlatform::start_program(OutsideProgram wanted) {
    switch (wanted) {
        case OutsideProgram::text_editor:
            return open("text-editor");
        case OutsideProgram::calculator:
            return open("calculator");
        case OutsideProgram::navarun:
            return open("navarun");
    }
}

void ScriptedPlatform::view_text(std::filesystem::path const& file,
                                 std::string const& shown_as) {
    m_effects.push_back({{"kind", "view"},
                         {"file", shown_as},
                         {"text", from_code_page(read_file(file, shown_as))}});
}

PictureSize ScriptedPlatform::picture_size(std::filesystem::path const& file) {
    std::string const name = path_text(file.filename());
    auto const size = size_in_header(read_file(file, name));
    if (!size) {
        throw FatalError{"L'image « " + name + " » n'a pas pu être affichée.",
                         "Ce n'est pas une image GIF, BMP ou JPEG."};
    }
    return *size;
}

bool ScriptedPlatform::key_is_held(int code) {
    return m_user != nullptr && m_user->key_held() == code;
}

Json ScriptedPlatform::take_pages() { return std::exchange(m_pages, Json::array()); }

Json ScriptedPlatform::take_effects() { return std::exchange(m_effects, Json::array()); }

}  // namespace navarun::pilot
