// A visit that prints: the pages drawn, and what stands on them.
#pragma once

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {

/// What the preview's inch measures on A4: the box by the paper, in twips.
inline constexpr double preview_ratio = 5100.0 / 11906;

class PrintVisit : public Visit {
  public:
    using Visit::Visit;

    /// The pages drawn since the last asking.
    Json pages() { return ask({{"op", "pages"}})["pages"]; }
    /// The last page drawn since the last asking.
    Json last_page() {
        Json const drawn = pages();
        if (!drawn.is_array() || drawn.empty()) {
            ADD_FAILURE() << "no page was drawn";
            return {{"ops", Json::array()}};
        }
        return drawn.back();
    }
    /// The page of the menu entry that prints everything.
    Json printed_page() {
        pages();
        click("MnuImprime");
        return last_page();
    }
    void toggle_preview() { click("MnuApercu_Impression"); }
    void close(std::string_view form) {
        Json const answer = ask({{"op", "close"}, {"form", form}});
        ASSERT_TRUE(answer.contains("ok")) << answer;
    }
    void answer_next(int value) {
        ASSERT_TRUE(ask({{"op", "answer"}, {"value", value}}).contains("ok"));
    }
    /// All of the preview at once: the box, its window, the mark of its menu entry.
    bool preview_is_open() {
        bool const shown = truth("Picture2.Visible");
        EXPECT_EQ(truth("Option_impression.Visible"), shown);
        EXPECT_EQ(truth("MnuApercu_Impression.Checked"), shown);
        return shown;
    }
};

inline std::vector<Json> operations(Json const& page, std::string_view kind) {
    std::vector<Json> found;
    for (auto const& operation : page["ops"]) {
        if (operation["op"] == kind) found.push_back(operation);
    }
    return found;
}

inline bool is_at(Json const& operation, double x, double y) {
    return operation.contains("x") && std::abs(operation["x"].get<double>() - x) < 1e-6 &&
           std::abs(operation["y"].get<double>() - y) < 1e-6;
}

/// The texts whose upper left corner is there.
inline std::vector<Json> texts_at(Json const& page, double x, double y) {
    std::vector<Json> found;
    for (auto const& text : operations(page, "text")) {
        if (is_at(text, x, y)) found.push_back(text);
    }
    return found;
}

/// The text there; fails the test where there is not exactly one.
inline Json text_at(Json const& page, double x, double y) {
    auto const found = texts_at(page, x, y);
    if (found.size() != 1) {
        ADD_FAILURE() << found.size() << " texts at " << x << ", " << y;
        return {{"text", ""}, {"font", ""}, {"size", 0}, {"bold", false}, {"color", ""}};
    }
    return found.front();
}

inline std::string words_at(Json const& page, double x, double y) {
    return text_at(page, x, y)["text"].get<std::string>();
}

/// The texts of a column, down the page.
inline std::vector<std::string> column(Json const& page, double x, double top, double step,
                                       int rows) {
    std::vector<std::string> found;
    for (int i = 0; i < rows; ++i) found.push_back(words_at(page, x, top + i * step));
    return found;
}

inline std::vector<Json> pictures(Json const& page, std::string_view name) {
    std::vector<Json> found;
    for (auto const& picture : operations(page, "picture")) {
        if (picture["name"] == name) found.push_back(picture);
    }
    return found;
}

/// The lines of the note, of which the first stands at 8.99.
inline std::vector<std::string> note_lines(Json const& page) {
    std::vector<std::string> lines;
    for (auto const& text : operations(page, "text")) {
        double const row = (text["y"].get<double>() - 8.99) / 0.22;
        bool const in_the_box = is_at(text, 0.5, text["y"].get<double>()) && row > -0.01;
        if (in_the_box) lines.push_back(text["text"].get<std::string>());
    }
    return lines;
}

/// The operations of a page that the other has not, as many times as it has them more.
inline Json without(Json const& page, Json const& other) {
    Json rest = Json::array();
    std::vector<Json> left(other["ops"].begin(), other["ops"].end());
    for (auto const& operation : page["ops"]) {
        auto const found = std::ranges::find(left, operation);
        if (found == left.end()) {
            rest.push_back(operation);
        } else {
            left.erase(found);
        }
    }
    return rest;
}

}  // namespace navarun::test
