// The texts of the window fit their places, on whatever screen the tests run.
#include "core/text.h"
#include "desktop/label_widget.h"
#include "desktop/to_qt.h"
#include "tests/desktop/window_fixture.h"
#include "zodiac/mansions.h"
#include "zodiac/signs.h"

namespace navarun::test {

namespace {

using desktop::LabelWidget;

// How much narrower than its font a text may be drawn and still be read with pleasure.
constexpr double least_narrowing = 0.8;

class TextsFit : public Window {
  protected:
    double narrowing(screen::Label& label, std::string_view text) {
        session().act([&](screen::User&) { label.Caption = text; });
        return static_cast<LabelWidget&>(widget(label)).narrowing();
    }
};

TEST_F(TextsFit, EveryNameOfAMansionAndASignIsReadable) {
    for (int number = 1; number <= mansion_count; ++number) {
        std::string const caption =
            std::to_string(number) + " " + std::string{mansion(number).name};
        EXPECT_GE(narrowing(form().Label_nomNakshatra, caption), least_narrowing) << caption;
    }
    for (int number = 1; number <= 12; ++number) {
        std::string const caption = "29 °  " + std::string{sign(number).name};
        EXPECT_EQ(narrowing(form().Label_zodiac, caption), 1) << caption;
    }
}

TEST_F(TextsFit, TheCaptionsOfTheBottomStripAreReadable) {
    EXPECT_EQ(narrowing(form().Label_Lal_Kitab, "CHANDRA (1 / 1 an)"), 1);
    EXPECT_EQ(narrowing(form().Label_Lal_Kitab, "SHUKRA (2  / 3 ans)"), 1);
    EXPECT_EQ(narrowing(form().Label_anneedefile, "30/12/2549"), 1);
    EXPECT_EQ(narrowing(form().Label_dinanka_Purnanka, "Dinânka: 9  Purnânka: 9"), 1);
    EXPECT_EQ(narrowing(form().Label_divinite, "Chandra 2"), 1);
    EXPECT_EQ(narrowing(form().Label_jourdeSemaine, "Mercredi"), 1);
}

TEST_F(TextsFit, NoCaptionOnTheWindowIsCutAtItsFirstSight) {
    for (auto* control : form().controls()) {
        auto* const label = dynamic_cast<screen::Label*>(control);
        if (label == nullptr || !label->is_shown()) continue;
        auto const& shown = static_cast<LabelWidget&>(widget(*label));
        EXPECT_GE(shown.narrowing(), least_narrowing) << label->full_name();
        int const line =
            QFontMetrics{shown.look().font}.tightBoundingRect(shown.look().text).height();
        EXPECT_LE(line, shown.height()) << label->full_name();
    }
}

// Where the screen has one pixel and a half to the pixel, too.
TEST_F(TextsFit, TheBordersEndWhereTheirGroundsEnd) {
    QImage const picture = window().grab().toImage();
    double const ratio = picture.devicePixelRatio();
    for (screen::Label const* label : {&form().Label_Lal_Kitab, &form().Label_zodiac}) {
        QWidget const& shown = widget(*label);
        QPoint const corner = shown.mapTo(&window(), QPoint{0, 0});
        // Along a line below the letters, from the middle to the right and beyond.
        int const y = static_cast<int>((corner.y() + shown.height() - 4) * ratio);
        int const middle = static_cast<int>((corner.x() + shown.width() / 2.0) * ratio);
        int const beyond = static_cast<int>((corner.x() + shown.width() + 2) * ratio);
        QColor const ground = desktop::to_qt(label->BackColor.get());
        bool border_met = false;
        for (int x = middle; x < beyond; ++x) {
            bool const on_ground = picture.pixelColor(x, y) == ground;
            border_met = border_met || !on_ground;
            EXPECT_FALSE(border_met && on_ground) << label->full_name() << " at " << x;
        }
        EXPECT_TRUE(border_met) << label->full_name();
    }
}

// The longest names, in all rows of a cell at once, stay inside the cell's box and off each
// other.
TEST_F(TextsFit, TheLongestNamesStayInsideTheirCells) {
    session().act([&](screen::User&) {
        for (int cell = 1; cell <= 12; ++cell) {
            form().Label_Dasha(cell).Caption = "Chandra";
            form().Label_Dasha(cell).FontBold = true;
            form().Label_annee(cell).Visible = true;
            form().Label_annee(cell).Caption = "Chandra";
            form().Label_mois(cell).Caption = "Chandra";
            form().Label_mois(cell).FontBold = true;
            form().Label_Solaire(cell).Caption = "12";
        }
    });
    // Left and right edges of the ring's boxes, in pixels of the chart.
    constexpr std::array edges{29, 138, 247, 356, 466};
    for (int cell = 1; cell <= 12; ++cell) {
        for (auto* row : {&form().Label_Dasha, &form().Label_DashaDate, &form().Label_annee,
                          &form().Label_mois, &form().Label_MoisDate}) {
            QRect const place = widget((*row)(cell)).geometry();
            auto const right = std::ranges::upper_bound(edges, place.left());
            ASSERT_NE(right, edges.end());
            EXPECT_LT(place.right(), *right) << (*row)(cell).full_name();
            EXPECT_GE(place.left(), edges.front()) << (*row)(cell).full_name();
        }
        QRect const date = widget(form().Label_MoisDate(cell)).geometry();
        QRect const palace = widget(form().Label_Solaire(cell)).geometry();
        EXPECT_LE(date.right(), palace.left()) << cell;
    }
}

}  // namespace

}  // namespace navarun::test
