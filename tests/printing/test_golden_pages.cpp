// Whole pages as they are kept beside the tests. A change of the page that is meant is written
// anew into the source folder with
//   NAVARUN_WRITE_GOLDEN=1 build/release/bin/test_printing --gtest_filter=Golden*
#include <cstdlib>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/files/pictures.h"
#include "tests/printing/print_visit.h"

namespace navarun::test {
namespace {

std::string path_of(std::string const& name) {
    return std::string{GOLDEN_FOLDER} + "/" + name + ".json";
}

// One operation a line, so that a change can be read.
void write(std::string const& name, Json const& page) {
    std::ofstream file{path_of(name)};
    file << "{\"target\":" << page["target"] << ",\"ratio\":" << page["ratio"] << ",\"ops\":[";
    char const* separator = "\n";
    for (auto const& operation : page["ops"]) {
        file << separator << operation;
        separator = ",\n";
    }
    file << "\n]}\n";
}

/// Where two values differ; empty where they agree, numbers to a millionth.
std::string difference(Json const& found, Json const& kept, std::string const& place) {
    if (found.is_number() && kept.is_number()) {
        bool const near = std::abs(found.get<double>() - kept.get<double>()) < 1e-6;
        return near ? "" : place + ": " + found.dump() + ", not " + kept.dump();
    }
    if (found.is_array() && kept.is_array()) {
        if (found.size() != kept.size()) {
            return place + ": " + std::to_string(found.size()) + " entries, not " +
                   std::to_string(kept.size());
        }
        for (std::size_t i = 0; i < found.size(); ++i) {
            auto told = difference(found[i], kept[i], place + "[" + std::to_string(i) + "]");
            if (!told.empty()) return told;
        }
        return "";
    }
    if (found.is_object() && kept.is_object()) {
        if (found.size() != kept.size()) return place + ": " + found.dump();
        for (auto const& [key, value] : found.items()) {
            if (!kept.contains(key)) return place + ": no " + key;
            auto told = difference(value, kept[key], place + "." + key);
            if (!told.empty()) return told;
        }
        return "";
    }
    return found == kept ? "" : place + ": " + found.dump() + ", not " + kept.dump();
}

struct Consultation {
    char const* name;
    char const* birth;
    int age;
    void (*prepare)(PrintVisit&);
    bool of_preview;
    friend std::ostream& operator<<(std::ostream& out, Consultation const& row) {
        return out << row.name;
    }
};

void nothing(PrintVisit&) {}

void ten_lines_of_notes(PrintVisit& visit) {
    std::string note;
    for (int i = 0; note.size() < 1200; ++i) {
        note += i % 12 == 11 ? "à revoir\r\navant l'été " : "consultation suivie ";
    }
    visit.set("Text_Note", note);
}

void portrait(PrintVisit& visit) {
    auto const path = visit.folder() / "zoe.gif";
    std::ofstream{path, std::ios::binary} << gif(300, 200);
    ASSERT_TRUE(visit.ask({{"op", "drop"}, {"control", "Picture_PHOTO"}, {"file", path}})
                    .contains("ok"));
    ASSERT_EQ(visit.text("Picture_PHOTO.Picture"), "file:zoe.gif");
}

constexpr Consultation consultations[] = {
    {"start_preview", "", 1, nothing, true},
    {"marie_claire_at_40", "17051962", 40,
     [](PrintVisit& visit) {
         visit.set("Text_prenom", "Marie-claire");
         visit.set("Text_nom", "Dupont");
         visit.set("Text_Note", "Revient en mai.");
     },
     false},
    {"marie_claire_preview", "17051962", 40,
     [](PrintVisit& visit) {
         visit.set("Text_prenom", "Marie-claire");
         visit.set("Text_nom", "Dupont");
     },
     true},
    {"coincidence_at_20", "17051962", 20, nothing, false},
    {"azure_aum", "01011950", 33, [](PrintVisit& visit) { visit.click("MnuAzur_Aum"); }, false},
    {"mauve_aum", "29022000", 26, [](PrintVisit& visit) { visit.click("MnuMauve_Aum"); }, true},
    {"short_names", "03021971", 50, [](PrintVisit& visit) { visit.click("Mnu_abrege"); },
     false},
    {"julian_date", "01011950", 12, [](PrintVisit& visit) { visit.click("Mnu_Julien"); },
     false},
    {"age_1", "28111987", 1, nothing, false},
    {"age_350", "15081620", 350, nothing, false},
    {"portrait", "17051962", 40, portrait, false},
    {"long_names", "10101930", 96,
     [](PrintVisit& visit) {
         visit.set("Text_prenom", std::string(25, 'W'));
         visit.set("Text_nom", std::string(25, 'M'));
     },
     false},
    {"ten_lines_of_notes", "31121999", 27, ten_lines_of_notes, false},
};

class Golden : public testing::TestWithParam<Consultation> {};
TEST_P(Golden, PageIsTheOneKept) {
    auto const& row = GetParam();
    PrintVisit visit;
    if (*row.birth != '\0') visit.generate_for(row.birth);
    row.prepare(visit);
    if (row.age != 1) visit.generate_at(row.age);
    visit.click("Command2");
    visit.pages();
    visit.click(row.of_preview ? "MnuApercu_Impression" : "MnuImprime");
    Json const page = visit.last_page();
    ASSERT_EQ(page["target"], row.of_preview ? "preview" : "printer");
    if (std::getenv("NAVARUN_WRITE_GOLDEN") != nullptr) write(row.name, page);
    std::ifstream file{path_of(row.name)};
    ASSERT_TRUE(file.is_open()) << path_of(row.name);
    EXPECT_EQ(difference(page, Json::parse(file), "page"), "");
}
INSTANTIATE_TEST_SUITE_P(Pages, Golden, testing::ValuesIn(consultations),
                         [](auto const& row) { return row.param.name; });

}  // namespace
}  // namespace navarun::test
