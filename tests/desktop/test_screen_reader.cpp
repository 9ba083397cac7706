// What a screen reader can do to the controls that draw themselves.
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

class ScreenReader : public Window {
  protected:
    QAccessibleInterface& told(screen::PlacedControl const& control) {
        auto* const shown = session().window(control.form())->widget(control);
        auto* const found = QAccessible::queryAccessibleInterface(shown);
        EXPECT_NE(found, nullptr) << control.full_name();
        return *found;
    }
    void push(screen::PlacedControl const& control) {
        auto* const actions = told(control).actionInterface();
        ASSERT_NE(actions, nullptr) << control.full_name();
        ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()))
            << control.full_name();
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
};

TEST_F(ScreenReader, PressesWhatAnswersToAClick) {
    push(form().Label_mois(5));
    EXPECT_EQ(session().program().consultation.colonne_mois, 5);
}

// A palace answers to a double click alone: a press that did nothing would be a riddle.
TEST_F(ScreenReader, PressesWhatAnswersToADoubleClickAlone) {
    push(form().Label_Solaire(10));
    EXPECT_TRUE(form().Text_definition_palais.Visible);
    push(form().Label_Solaire(10));
    EXPECT_FALSE(form().Text_definition_palais.Visible);
}

TEST_F(ScreenReader, MeetsAPictureToBePressedAsAButton) {
    choose_menu(form().Mnu_Julien);
    EXPECT_EQ(told(form().Image_cal_Julien).role(), QAccessible::Button);
    EXPECT_EQ(told(form().Image_Titre).role(), QAccessible::Graphic);
    EXPECT_EQ(told(form().Picture_KUNDALI).role(), QAccessible::Graphic);
    click(form().Label_age);
    EXPECT_EQ(told(session().program().choix_age.Image2).role(), QAccessible::Button);
    push(session().program().choix_age.Image2);
    EXPECT_EQ(session().program().choix_age.Label2(12).Caption.get(), "112");
}

TEST_F(ScreenReader, HearsTheNameOfADateFieldInEachPartOfIt) {
    auto& box = dynamic_cast<QComboBox&>(widget(form().Combo_moisNaiss));
    QString const name = told(form().Combo_moisNaiss).text(QAccessible::Name);
    EXPECT_EQ(name, "Mois de naissance");
    EXPECT_EQ(box.lineEdit()->accessibleName(), name);
    EXPECT_EQ(box.view()->accessibleName(), name);
    for (auto const* bar :
         {box.view()->verticalScrollBar(), box.view()->horizontalScrollBar()}) {
        EXPECT_EQ(bar->accessibleName(), name + ", défilement");
    }
}

TEST_F(ScreenReader, PressesNothingOnWhatIsOnlyRead) {
    auto* const actions = told(form().Label_nomNakshatra).actionInterface();
    EXPECT_TRUE(actions == nullptr || actions->actionNames().isEmpty());
    EXPECT_EQ(told(form().Label_nomNakshatra).role(), QAccessible::StaticText);
}

}  // namespace

}  // namespace navarun::test
