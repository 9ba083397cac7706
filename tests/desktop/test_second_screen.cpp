// A desk with two screens side by side: run with the platform that CMakeLists.txt describes.
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

class SecondScreen : public Window {
  protected:
    // The main window carried over to the second screen.
    void SetUp() override {
        auto const screens = QGuiApplication::screens();
        ASSERT_GE(screens.size(), 2);
        second = screens[1];
        window().windowHandle()->setScreen(second);
        window().move(second->availableGeometry().topLeft() + QPoint{20, 20});
        ASSERT_EQ(window().screen(), second);
    }

    QScreen* second = nullptr;
};

TEST_F(SecondScreen, SmallWindowsOpenThereBesideTheMainOne) {
    auto& p = session().program();
    for (auto const& [entry, form] :
         {std::pair<screen::MenuEntry*, screen::Form*>{&p.form1.MnuCalendrier, &p.frm_calend},
          std::pair<screen::MenuEntry*, screen::Form*>{&p.form1.Mnuperiode, &p.affiche_cycle},
          std::pair<screen::MenuEntry*, screen::Form*>{&p.form1.MnuFleche, &p.fleche}}) {
        choose_menu(*entry);
        auto const& small = *session().window(*form);
        EXPECT_TRUE(small.isVisible());
        EXPECT_TRUE(second->geometry().contains(small.frameGeometry()))
            << form->name() << " at " << small.x() << ',' << small.y();
    }
}

}  // namespace

}  // namespace navarun::test
