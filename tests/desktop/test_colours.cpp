// The program's colours are its own, whatever the colours of the desktop round it.
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolTip>
#include <algorithm>

#include <gtest/gtest.h>

#include "desktop/application.h"
#include "tests/desktop/contrast.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

QPalette dark_desktop() {
    QPalette dark;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role != QPalette::NoRole)
            dark.setColor(static_cast<QPalette::ColorRole>(role), QColor{0x20, 0x20, 0x20});
    }
    for (auto const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::HighlightedText}) {
        dark.setColor(role, Qt::white);
    }
    return dark;
}

class DarkDesktop : public testing::Test {
  protected:
    DarkDesktop() {
        QApplication::setPalette(dark_desktop());
        QApplication::setPalette(dark_desktop(), "QMenu");
        QToolTip::setPalette(dark_desktop());
        desktop::set_up(*qApp);
    }
};

TEST_F(DarkDesktop, LeavesEveryTextReadable) {
    QLineEdit line;
    QPlainTextEdit area;
    QListView list;
    QPushButton button;
    QMenu menu;
    for (QWidget const* widget :
         {static_cast<QWidget const*>(&line), static_cast<QWidget const*>(&area),
          static_cast<QWidget const*>(&list), static_cast<QWidget const*>(&button),
          static_cast<QWidget const*>(&menu)}) {
        auto const colours = widget->palette();
        for (auto const group : {QPalette::Active, QPalette::Inactive}) {
            EXPECT_GE(contrast(colours.color(group, QPalette::Text),
                               colours.color(group, QPalette::Base)),
                      7);
            EXPECT_GE(contrast(colours.color(group, QPalette::WindowText),
                               colours.color(group, QPalette::Window)),
                      7);
            EXPECT_GE(contrast(colours.color(group, QPalette::ButtonText),
                               colours.color(group, QPalette::Button)),
                      7);
            EXPECT_GE(contrast(colours.color(group, QPalette::HighlightedText),
                               colours.color(group, QPalette::Highlight)),
                      4.5);
        }
        EXPECT_EQ(colours.color(QPalette::Base), Qt::white);
    }
    auto const tip = QToolTip::palette();
    EXPECT_GE(contrast(tip.color(QPalette::ToolTipText), tip.color(QPalette::ToolTipBase)), 7);
}

TEST_F(DarkDesktop, LeavesNoRoleToTheDesktop) {
    auto const colours = QApplication::palette();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role == QPalette::NoRole) continue;
        EXPECT_NE(colours.color(static_cast<QPalette::ColorRole>(role)),
                  QColor(0x20, 0x20, 0x20))
            << role;
    }
}

// The ring has to be seen on the ground of every scheme.
class RingOfScheme : public Window, public testing::WithParamInterface<int> {};
TEST_P(RingOfScheme, StandsOutFromTheGround) {
    screen::MenuEntry* const entries[]{&form().MnuAzur_cycle, &form().MnuAzur_Aum,
                                       &form().MnuMauve_cycle, &form().MnuMauve_Aum};
    choose_menu(*entries[GetParam()]);
    widget(form().Command2).setFocus(Qt::TabFocusReason);
    QImage const picture = window().grab().toImage();
    QPoint const corner =
        widget(form().Command2).mapTo(&window(), QPoint{0, 0}) * picture.devicePixelRatio();
    // Across the ring above the button, at its middle.
    int const x = corner.x() + static_cast<int>(widget(form().Command2).width() *
                                                picture.devicePixelRatio() / 2);
    double darkest = 1;
    double lightest = 0;
    for (int y = corner.y() - static_cast<int>(4 * picture.devicePixelRatio()); y < corner.y();
         ++y) {
        darkest = std::min(darkest, luminance(picture.pixelColor(x, y)));
        lightest = std::max(lightest, luminance(picture.pixelColor(x, y)));
    }
    EXPECT_GE((lightest + 0.05) / (darkest + 0.05), 4.5);
}
INSTANTIATE_TEST_SUITE_P(Schemes, RingOfScheme, testing::Range(0, 4));

}  // namespace

}  // namespace navarun::test
