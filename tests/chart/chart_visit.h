// A visit in which arrows are drawn.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/visit.h"

namespace navarun::test {

class ChartVisit : public Visit {
  public:
    using Visit::Visit;

    Json mouse(std::string_view control, char const* event, int button, double x, double y) {
        return ask({{"op", "mouse"},
                    {"control", control},
                    {"event", event},
                    {"button", button},
                    {"x", x},
                    {"y", y}});
    }
    void chart(char const* event, int button, double x, double y) {
        Json const answer = mouse("Picture_KUNDALI", event, button, x, y);
        EXPECT_TRUE(answer.contains("ok")) << answer;
    }
    /// A whole drag with the left button.
    void drag_arrow(double x1, double y1, double x2, double y2) {
        chart("down", 1, x1, y1);
        chart("move", 1, x2, y2);
        chart("up", 1, x2, y2);
    }
    void toggle_window() { click("MnuFleche"); }

    Json drawing() { return value("Picture_KUNDALI.Drawing"); }
    std::size_t rubber_lines() {
        return program().form1.Picture_KUNDALI.lines(screen::Layer::rubber).size();
    }
};

}  // namespace navarun::test
