// A visit with the practice's folders at hand: files put in, files looked at, the acts round
// saving, browsing and loading in a word.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/files.h"
#include "tests/support/visit.h"

namespace navarun::test {

inline constexpr int key_enter = 13;
inline constexpr int key_control = 17;
inline constexpr int key_delete = 46;

/// A record's bytes for someone born on 17/05/1962, by names, portrait and note.
inline std::string record_of(std::string_view first_name, std::string_view last_name,
                             std::string_view portrait = "", std::string_view note = "") {
    std::string line = "\"";
    line.append(first_name).append("\",\"").append(last_name);
    line.append("\",\"17\",\"05\",\"19\",\"62\",0,\"");
    line.append(portrait).append("\",\"").append(note).append("\"\r\n");
    return line;
}

class Practice : public Visit {
  public:
    using Visit::Visit;

    std::filesystem::path data(int number) const {
        return folder() / "RESSOURCES" / ("DATA" + std::to_string(number));
    }
    std::filesystem::path images() const { return folder() / "RESSOURCES" / "IMAGE"; }
    std::filesystem::path address_book() const {
        return folder() / "RESSOURCES" / "INTERNET.DAT";
    }

    void put(std::string const& record, std::string_view bytes, int number = 1) {
        put_file(data(number) / record, bytes);
    }
    std::string record(std::string const& name, int number = 1) const {
        return file_content(data(number) / name);
    }

    void name_person(std::string_view first_name, std::string_view last_name) {
        set("Text_prenom", first_name);
        set("Text_nom", last_name);
    }
    void save() { click("Command_Disk_Vert"); }
    void open_browser(int number = 1) { click("Charge(" + std::to_string(number) + ")"); }
    void load(std::string_view record) {
        open_browser();
        choose("File_Fichier", record);
        double_click("File_Fichier");
    }
    void answer_next_box(int answer) { ask({{"op", "answer"}, {"value", answer}}); }
    /// Sends an act that ends the run; its answer.
    Json fatal(Json const& request) {
        Json answer = ask(request);
        EXPECT_EQ(answer.value("error", ""), "fatal") << answer;
        EXPECT_EQ(exit_status(), 1);
        return answer;
    }
    Json fatal_click(std::string_view control) {
        return fatal({{"op", "click"}, {"control", control}});
    }
    Json fatal_double_click(std::string_view control) {
        return fatal({{"op", "dblclick"}, {"control", control}});
    }
    /// Drops what is dragged on a control; what the pilot answers.
    Json drop(std::string_view control) { return ask({{"op", "drop"}, {"control", control}}); }
    Json drop_file(std::filesystem::path const& file) {
        return ask({{"op", "drop"}, {"control", "Picture_PHOTO"}, {"file", file.string()}});
    }
    std::vector<std::string> list(std::string_view control = "File_Fichier") {
        return value(std::string{control} + ".List").get<std::vector<std::string>>();
    }
    std::string diskette() { return text("Command_Disk_Vert.Picture"); }
};

/// The text of the report with which a run ended.
inline std::string report_of(Json const& answer) {
    for (auto const& effect : answer.value("effects", Json::array())) {
        if (effect.value("title", "") == "N.A.V.A.R.U.N") return effect.value("text", "");
    }
    return "";
}

inline Json message(std::string_view text, double seconds) {
    Json effect{{"kind", "message"}, {"text", text}, {"seconds", seconds}};
    if (seconds == static_cast<int>(seconds)) effect["seconds"] = static_cast<int>(seconds);
    return effect;
}

inline Json box(std::string_view title, std::string_view text, int answer) {
    return {{"kind", "box"}, {"title", title}, {"text", text}, {"answer", answer}};
}

}  // namespace navarun::test
