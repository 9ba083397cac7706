// Arrows and schemes at the window, with real events.
#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QResizeEvent>

#include "desktop/to_qt.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

QRgb const purple = qRgb(0x80, 0x00, 0x80);
QRgb const red = qRgb(0xFF, 0x00, 0x00);

// The free centre of the chart, where no label takes the mouse; pixels of the chart.
constexpr QPoint left_end{160, 200};
constexpr QPoint middle{230, 200};
constexpr QPoint right_end{300, 200};

// Of an option: right of its caption a click chooses nothing.
constexpr QPoint on_its_caption{20, 10};

class Arrows : public Window {
  protected:
    navarun::Fleche& fleche() { return session().program().fleche; }
    desktop::FormWindow& tool() { return *session().window(fleche()); }
    QWidget& chart() { return widget(form().Picture_KUNDALI); }

    void open_tool() {
        choose_menu(form().MnuFleche);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&tool()));
    }

    void mouse(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event{type,   QPointF{place}, chart().mapToGlobal(QPointF{place}),
                          button, held,           Qt::NoModifier};
        QApplication::sendEvent(&chart(), &event);
    }
    void press(QPoint place) {
        mouse(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    }
    void move_to(QPoint place) {
        mouse(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
    }
    void release(QPoint place) {
        mouse(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
    }
    void draw(QPoint from, QPoint to) {
        press(from);
        move_to(to);
        release(to);
    }

    QRgb chart_pixel(QPoint place) {
        QPixmap const grabbed = chart().grab();
        return grabbed.toImage().pixel(place * grabbed.devicePixelRatio());
    }
    bool entry_is_checked(char const* name) {
        return window().findChild<QAction*>(QString::fromLatin1(name))->isChecked();
    }
};

TEST_F(Arrows, TheEntryOpensTheToolWindowAndBearsAMark) {
    EXPECT_EQ(session().window(fleche()), nullptr) << "shown before anybody asked";
    open_tool();
    EXPECT_TRUE(tool().isVisible());
    EXPECT_EQ(tool().windowTitle(), QStringLiteral("Flêche"));
    EXPECT_TRUE(entry_is_checked("MnuFleche"));
    choose_menu(form().MnuFleche);
    EXPECT_FALSE(tool().isVisible());
    EXPECT_FALSE(entry_is_checked("MnuFleche"));
}

TEST_F(Arrows, TheToolWindowStandsAboveAndBesideTheChart) {
    open_tool();
    EXPECT_TRUE(tool().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QRect const chart_on_screen{chart().mapToGlobal(QPoint{0, 0}), chart().size()};
    EXPECT_FALSE(tool().frameGeometry().intersects(chart_on_screen));
    EXPECT_FALSE(tool().isModal());
}

TEST_F(Arrows, NothingIsDrawnWithoutTheToolWindow) {
    QImage const before = chart().grab().toImage();
    draw(left_end, right_end);
    EXPECT_EQ(chart().grab().toImage(), before);
}

TEST_F(Arrows, ADragShowsARubberLineThenAnArrow) {
    open_tool();
    press(left_end);
    move_to(right_end);
    EXPECT_EQ(chart_pixel(middle), purple);
    // The rubber line leaves the place where it was.
    move_to({300, 300});
    EXPECT_NE(chart_pixel(middle), purple);
    move_to(right_end);
    release(right_end);
    EXPECT_EQ(chart_pixel(middle), purple);
    auto const& lines = form().Picture_KUNDALI.lines(screen::Layer::persistent);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].x1, left_end.x() * 15);
    EXPECT_EQ(lines[0].y1, left_end.y() * 15);
    EXPECT_EQ(lines[0].x2, right_end.x() * 15);
}

TEST_F(Arrows, ASecondDragKeepsTheFirstArrow) {
    open_tool();
    draw(left_end, right_end);
    draw({160, 300}, {300, 300});
    EXPECT_EQ(chart_pixel(middle), purple);
    EXPECT_EQ(chart_pixel({230, 300}), purple);
}

TEST_F(Arrows, SurviveMinimisingAndAChangeOfSize) {
    open_tool();
    draw(left_end, right_end);
    QImage const drawn = chart().grab().toImage();
    window().showMinimized();
    QCoreApplication::processEvents();
    window().showNormal();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window()));
    EXPECT_EQ(chart_pixel(middle), purple);
    QResizeEvent resized{chart().size(), QSize{10, 10}};
    QApplication::sendEvent(&chart(), &resized);
    EXPECT_EQ(chart().grab().toImage(), drawn);
}

TEST_F(Arrows, LieUnderTheTextsOfTheCells) {
    open_tool();
    QPoint const in_a_cell =
        widget(form().Label_Solaire(9)).geometry().center();  // the sun's box is opaque
    QRgb const box =
        chart_pixel(widget(form().Label_Solaire(9)).geometry().topLeft() + QPoint{2, 2});
    draw({10, in_a_cell.y()}, {480, in_a_cell.y()});
    QPoint const edge = widget(form().Label_Solaire(9)).geometry().topLeft();
    EXPECT_EQ(chart_pixel({edge.x() + 2, in_a_cell.y()}), box);
    EXPECT_EQ(chart_pixel({edge.x() - 6, in_a_cell.y()}), purple);
}

TEST_F(Arrows, AreWipedByGenerate) {
    QImage const clean = chart().grab().toImage();
    open_tool();
    draw(left_end, right_end);
    ASSERT_NE(chart().grab().toImage(), clean);
    click(form().Command2);
    EXPECT_NE(chart_pixel(middle), purple);
    EXPECT_TRUE(tool().isVisible());
}

TEST_F(Arrows, AreWipedByTheRubberButton) {
    QImage const clean = chart().grab().toImage();
    open_tool();
    draw(left_end, right_end);
    QTest::mouseClick(tool().widget(fleche().Command1), Qt::LeftButton);
    EXPECT_EQ(chart().grab().toImage(), clean);
}

TEST_F(Arrows, AreWipedByClosingTheToolByItsFrame) {
    QImage const clean = chart().grab().toImage();
    open_tool();
    draw(left_end, right_end);
    tool().close();
    EXPECT_FALSE(tool().isVisible());
    EXPECT_FALSE(entry_is_checked("MnuFleche"));
    EXPECT_EQ(chart().grab().toImage(), clean);
    // It opens again.
    open_tool();
    EXPECT_TRUE(tool().isVisible());
    EXPECT_TRUE(entry_is_checked("MnuFleche"));
}

TEST_F(Arrows, AClickOnAColourFieldGivesItsColour) {
    open_tool();
    draw(left_end, right_end);
    QTest::mouseClick(tool().widget(fleche().Label_couleur(12)), Qt::LeftButton);
    draw({160, 300}, {300, 300});
    EXPECT_EQ(chart_pixel({230, 300}), red);
    EXPECT_EQ(chart_pixel(middle), purple);
    EXPECT_EQ(tool().widget(fleche().Shape_selection)->pos(),
              tool().widget(fleche().Label_couleur(12))->pos());
}

TEST_F(Arrows, AClickOnASampleGivesItsWidth) {
    open_tool();
    auto* const samples = tool().widget(fleche().Picture1);
    QTest::mouseClick(samples, Qt::LeftButton, Qt::NoModifier, QPoint{60, 63});
    EXPECT_EQ(session().program().arrow.epaisseur_fleche, 9);
    draw(left_end, right_end);
    for (int const dy : {-4, 0, 3})
        EXPECT_EQ(chart_pixel(middle + QPoint{0, dy}), purple) << dy;
    EXPECT_NE(chart_pixel(middle + QPoint{0, 7}), purple);
    // Below the last sample.
    QTest::mouseClick(samples, Qt::LeftButton, Qt::NoModifier, QPoint{60, 74});
    EXPECT_EQ(session().program().arrow.epaisseur_fleche, 9);
}

TEST_F(Arrows, EachSampleShowsItsWidth) {
    open_tool();
    QPixmap const grabbed = tool().widget(fleche().Picture1)->grab();
    QImage const samples = grabbed.toImage();
    for (int sample = 0; sample < 5; ++sample) {
        int dark = 0;
        int const centre = (sample * 215 + 100) / 15;
        for (int y = centre - 6; y <= centre + 6; ++y) {
            dark += qGray(samples.pixel(QPoint{60, y})) < 128 ? 1 : 0;
        }
        EXPECT_NEAR(dark, sample * 2 + 1, 1) << sample;
    }
}

TEST_F(Arrows, TheKindIsChosenByMouseAndByKeyboard) {
    open_tool();
    auto* const line = tool().widget(fleche().Option_Fleche(3));
    auto* const filled = tool().widget(fleche().Option_Fleche(1));
    QTest::mouseClick(line, Qt::LeftButton, Qt::NoModifier, on_its_caption);
    EXPECT_EQ(session().program().arrow.style_fleche, 3);
    filled->setFocus(Qt::TabFocusReason);
    QTest::keyClick(filled, Qt::Key_Space);
    EXPECT_EQ(session().program().arrow.style_fleche, 1);
    auto const chosen = [&](int index) {
        return dynamic_cast<QAbstractButton&>(*tool().widget(fleche().Option_Fleche(index)))
            .isChecked();
    };
    EXPECT_TRUE(chosen(1));
    EXPECT_FALSE(chosen(2));
    EXPECT_FALSE(chosen(3));
}

TEST_F(Arrows, AClickOnTheChosenKindKeepsItsMark) {
    open_tool();
    auto* const open = tool().widget(fleche().Option_Fleche(2));
    QTest::mouseClick(open, Qt::LeftButton, Qt::NoModifier, on_its_caption);
    EXPECT_TRUE(dynamic_cast<QAbstractButton&>(*open).isChecked());
    EXPECT_EQ(session().program().arrow.style_fleche, 2);
}

TEST_F(Arrows, WherePressedWithoutADragAHeadStands) {
    open_tool();
    press(middle);
    release(middle);
    EXPECT_EQ(form().Picture_KUNDALI.lines(screen::Layer::persistent).size(), 4U);
}

struct SchemeLook {
    char const* name;
    screen::MenuEntry Form1::*entry;
    QRgb window;
    QRgb small_window;
    friend std::ostream& operator<<(std::ostream& out, SchemeLook const& row) {
        return out << row.name;
    }
};
SchemeLook const scheme_looks[] = {
    {"azure_aum", &Form1::MnuAzur_Aum, qRgb(0xBD, 0xE7, 0xF7), qRgb(0xB4, 0xCE, 0xFC)},
    {"mauve_cycle", &Form1::MnuMauve_cycle, qRgb(0xE4, 0xCE, 0xFC), qRgb(0xCC, 0xB2, 0xFC)},
    {"mauve_aum", &Form1::MnuMauve_Aum, qRgb(0xE4, 0xCE, 0xFC), qRgb(0xCC, 0xB2, 0xFC)},
};

class SchemeAtTheWindow : public Arrows, public testing::WithParamInterface<SchemeLook> {};
INSTANTIATE_TEST_SUITE_P(Schemes, SchemeAtTheWindow, testing::ValuesIn(scheme_looks),
                         [](auto const& row) { return row.param.name; });

TEST_P(SchemeAtTheWindow, ColoursTheWindowTheChartAndTheToolWindow) {
    QImage const chart_before = chart().grab().toImage();
    choose_menu(form().*GetParam().entry);
    auto* const canvas = window().findChild<QWidget*>(QStringLiteral("canvas"));
    // Between the two columns of the identity panel nothing stands.
    EXPECT_EQ(canvas->grab(QRect{133, 320, 1, 1}).toImage().pixel(0, 0), GetParam().window);
    EXPECT_NE(chart().grab().toImage(), chart_before);
    open_tool();
    QImage const frame = tool().widget(fleche().Frame1)->grab().toImage();
    EXPECT_EQ(frame.pixel(frame.width() - 3, frame.height() - 3), GetParam().small_window);
}

TEST_P(SchemeAtTheWindow, BearsTheOnlyMark) {
    choose_menu(form().*GetParam().entry);
    int marks = 0;
    for (auto* entry : {&form().MnuAzur_cycle, &form().MnuAzur_Aum, &form().MnuMauve_cycle,
                        &form().MnuMauve_Aum}) {
        marks += window().findChild<QAction*>(desktop::to_qt(entry->name()))->isChecked();
    }
    EXPECT_EQ(marks, 1);
    EXPECT_TRUE(window()
                    .findChild<QAction*>(desktop::to_qt((form().*GetParam().entry).name()))
                    ->isChecked());
    // Chosen again it keeps it.
    choose_menu(form().*GetParam().entry);
    EXPECT_TRUE(window()
                    .findChild<QAction*>(desktop::to_qt((form().*GetParam().entry).name()))
                    ->isChecked());
}

TEST_F(Arrows, AChangeOfSchemeWipesThem) {
    open_tool();
    draw(left_end, right_end);
    choose_menu(form().MnuMauve_cycle);
    EXPECT_NE(chart_pixel(middle), purple);
    EXPECT_TRUE(tool().isVisible());
}

}  // namespace

}  // namespace navarun::test
