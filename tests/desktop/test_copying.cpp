// Texts that a person takes out of the windows, and that taking them does nothing else.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

class Copying : public Window {
  protected:
    void open_periods() {
        choose_menu(form().Mnuperiode);
        m_list =
            dynamic_cast<QListView*>(session().window(periods().form())->widget(periods()));
        ASSERT_NE(m_list, nullptr);
    }
    screen::List& periods() { return session().program().affiche_cycle.List_periode; }
    QListView& list() { return *m_list; }

    // The right button, as the toolkit tells it: a press, the menu, a release.
    QMenu* right_click(int row) {
        QPoint const where = list().visualRect(list().model()->index(row, 0)).center();
        auto& viewport = *list().viewport();
        QTest::mousePress(&viewport, Qt::RightButton, Qt::NoModifier, where);
        QContextMenuEvent asked{QContextMenuEvent::Mouse, where, viewport.mapToGlobal(where)};
        QApplication::sendEvent(&viewport, &asked);
        QTest::mouseRelease(&viewport, Qt::RightButton, Qt::NoModifier, where);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static void take(QMenu* menu, int place) {
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->actions().size(), 2);
        menu->actions().at(place)->trigger();
        menu->close();
    }
    static std::string clipboard() { return QApplication::clipboard()->text().toStdString(); }

  private:
    QListView* m_list = nullptr;
};

TEST_F(Copying, TheRightButtonOffersALineOfAListAndChoosesNothing) {
    open_periods();
    int const chosen = periods().ListIndex;
    int clicks = 0;
    periods().on_click = [&] { ++clicks; };
    int const row = list().indexAt(QPoint{4, 4}).row() + 1;
    ASSERT_NE(row, chosen);
    auto* const menu = right_click(row);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().front()->text().remove(QLatin1Char('&')), "Copier la ligne");
    take(menu, 0);
    EXPECT_EQ(clipboard(), periods().entries()[static_cast<std::size_t>(row)]);
    EXPECT_EQ(periods().ListIndex, chosen);
    EXPECT_EQ(clicks, 0);
}

TEST_F(Copying, TheWholeListIsOfferedToo) {
    open_periods();
    take(right_click(list().indexAt(QPoint{4, 4}).row()), 1);
    std::string all;
    for (auto const& line : periods().entries()) all += line + "\n";
    EXPECT_EQ(clipboard(), all);
}

TEST_F(Copying, TheKeyOfTheMenuOffersTheChosenLine) {
    open_periods();
    session().act([&](screen::User& user) { user.choose(periods(), 2); });
    QContextMenuEvent asked{QContextMenuEvent::Keyboard, QPoint{}, QPoint{}};
    QApplication::sendEvent(&list(), &asked);
    take(qobject_cast<QMenu*>(QApplication::activePopupWidget()), 0);
    EXPECT_EQ(clipboard(), periods().entries()[2]);
}

// A half typed day is completed when its field is left, and it has not been.
TEST_F(Copying, TheKeyboardStaysWhereItWas) {
    click(form().Bouton_Internet);
    click(form().Combo_jourNaiss);
    type("1");
    auto& addresses = *dynamic_cast<QListView&>(widget(form().List_Internet)).viewport();
    QTest::mouseClick(&addresses, Qt::RightButton, Qt::NoModifier, QPoint{9, 9});
    EXPECT_EQ(session().program().screen.focus(), &form().Combo_jourNaiss);
    EXPECT_EQ(form().Combo_jourNaiss.Text.get(), "1");
    EXPECT_EQ(form().List_Internet.ListIndex, -1);
    QTest::mouseClick(&addresses, Qt::LeftButton, Qt::NoModifier, QPoint{9, 9});
    EXPECT_EQ(session().program().screen.focus(), &form().List_Internet);
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().List_Internet));
    EXPECT_EQ(form().List_Internet.ListIndex, 0);
}

TEST_F(Copying, WhereNoLineIsNoneIsOffered) {
    click(form().Charge(1));
    auto& records = dynamic_cast<QListView&>(widget(form().File_Fichier));
    QContextMenuEvent asked{QContextMenuEvent::Mouse, QPoint{9, 9},
                            records.viewport()->mapToGlobal(QPoint{9, 9})};
    QApplication::sendEvent(records.viewport(), &asked);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (auto const* action : menu->actions()) EXPECT_FALSE(action->isEnabled());
    menu->close();
}

// What went wrong is sent on to who can help.
TEST_F(Copying, TheWordsOfABoxCanBeSelectedAndTheAnswerStillHasTheKeyboard) {
    bool met = false;
    QTimer::singleShot(0, &window(), [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        met = true;
        EXPECT_TRUE(box->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        EXPECT_TRUE(box->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
        EXPECT_TRUE(box->focusWidget() == box->button(QMessageBox::Ok));
        QTest::keyClick(box, Qt::Key_Escape);
    });
    choose_menu(form().MnuQuitter);
    EXPECT_TRUE(met);
    EXPECT_EQ(session().exit_status(), std::nullopt);
}

}  // namespace

}  // namespace navarun::test
