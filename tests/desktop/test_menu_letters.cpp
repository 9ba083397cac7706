// The letters that open the menus and choose their entries.
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <set>

#include <gmock/gmock.h>

#include "desktop/mnemonics.h"
#include "desktop/to_qt.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

using desktop::with_mnemonics;

TEST(MenuLetters, TheFirstLetterIsPreferredThenThoseOfTheOtherWords) {
    EXPECT_EQ(with_mnemonics({"Menu", "Impression", "Outils", "Afficher", "Apparence"}),
              (QStringList{"&Menu", "&Impression", "&Outils", "&Afficher", "A&pparence"}));
    EXPECT_EQ(with_mnemonics({"Azur (cycle)", "Azur clair"}),
              (QStringList{"&Azur (cycle)", "Azur &clair"}));
}

TEST(MenuLetters, ACaptionsOwnMarkIsKeptAndTakenFromNobody) {
    EXPECT_EQ(with_mnemonics({"Calcul", "&Couleur"}), (QStringList{"C&alcul", "&Couleur"}));
    EXPECT_EQ(with_mnemonics({"Sel && poivre"}), (QStringList{"&Sel && poivre"}));
}

TEST(MenuLetters, ALetterThatEveryKeyboardHasIsPreferredToAnAccent) {
    EXPECT_EQ(with_mnemonics({"À propos"}), (QStringList{"À &propos"}));
    EXPECT_EQ(with_mnemonics({"Éé"}), (QStringList{"&Éé"}));
}

TEST(MenuLetters, ThoseBeforeGiveWayWhereTheyHaveAnotherLetter) {
    EXPECT_EQ(with_mnemonics({"ab", "a"}), (QStringList{"a&b", "&a"}));
    EXPECT_EQ(with_mnemonics({"abc", "ab", "a"}), (QStringList{"ab&c", "a&b", "&a"}));
}

TEST(MenuLetters, OneForWhichNoLetterIsLeftStaysWithout) {
    EXPECT_EQ(with_mnemonics({"a", "A", "-"}), (QStringList{"&a", "A", "-"}));
}

class LettersOfTheWindow : public Window {
  protected:
    // Each action of a menu by its letter; fails the test where a letter comes twice.
    void check(QList<QAction*> const& actions) {
        std::set<QChar> letters;
        for (auto const* action : actions) {
            if (action->isSeparator()) continue;
            auto const mark = action->text().indexOf(QLatin1Char('&'));
            ASSERT_GE(mark, 0) << action->text().toStdString();
            EXPECT_TRUE(letters.insert(action->text().at(mark + 1).toLower()).second)
                << action->text().toStdString();
            if (action->menu() != nullptr) check(action->menu()->actions());
        }
    }
};

TEST_F(LettersOfTheWindow, AreThereInEveryMenuAndNoneComesTwice) {
    check(window().menuBar()->actions());
    // The model's captions are as they were.
    EXPECT_EQ(form().MnuBouton_Menu.Caption.get(), "Menu");
    EXPECT_EQ(form().MnuCouleur_Navarun.Caption.get(), "&Couleur N.A.V.A.R.U.N");
}

TEST_F(LettersOfTheWindow, ACaptionThatChangesIsMarkedAnew) {
    session().act([&](screen::User&) { form().MnuBouton_Menu.Caption = "Outillage"; });
    check(window().menuBar()->actions());
    EXPECT_EQ(window().menuBar()->actions().front()->text().remove(QLatin1Char('&')),
              "Outillage");
}

}  // namespace

}  // namespace navarun::test
