// The windows beside the main one, with real key and mouse events: the calendar, the lists, the
// chooser of ages and the palace of destiny.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>

#include "desktop/label_widget.h"
#include "desktop/to_qt.h"
#include "shell/small_windows.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

using desktop::LabelWidget;

class SmallWindows : public Window {
  protected:
    Program& program() { return session().program(); }
    FrmCalend& calendar() { return program().frm_calend; }

    /// The window of a form that has been shown.
    desktop::FormWindow& shown(screen::Form const& small) {
        auto* const found = session().window(small);
        if (found == nullptr) throw std::runtime_error{"never shown"};
        return *found;
    }
    template <typename W = QWidget>
    W& part(screen::Control const& control) {
        return dynamic_cast<W&>(*shown(control.form()).widget(control));
    }
    void press_on(screen::Control const& control) {
        QTest::mouseClick(&part(control), Qt::LeftButton);
    }

    void open_calendar() { choose_menu(form().MnuCalendrier); }
    void open_cycle() { choose_menu(form().Mnuperiode); }
    void open_palace() { choose_menu(form().Mnu_palaisdestin); }
    void open_lords() { click(form().Bouton_seigneurjour); }
    void open_ages() { click(form().Label_age); }

    struct Row {
        char const* name;
        screen::Form* small;
        void (SmallWindows::*open)();
        screen::MenuEntry* mark;
        char const* title;
        bool modal;
    };
    std::vector<Row> rows() {
        auto& p = program();
        return {
            {"calendar", &p.frm_calend, &SmallWindows::open_calendar, nullptr, "Calendrier",
             false},
            {"cycle", &p.affiche_cycle, &SmallWindows::open_cycle, &form().Mnuperiode,
             "Périodes", false},
            {"palace", &p.palais_du_destin, &SmallWindows::open_palace,
             &form().Mnu_palaisdestin, "  PALAIS DU DESTIN", false},
            {"lords", &p.frm_seigneur_jour, &SmallWindows::open_lords, nullptr,
             "Seigneur du Jour", false},
            {"ages", &p.choix_age, &SmallWindows::open_ages, nullptr, "", true},
        };
    }
};

TEST_F(SmallWindows, EachOpensByItsRealEntryAsAWindowOfItsOwnAboveTheOthers) {
    for (auto const& row : rows()) {
        EXPECT_EQ(session().window(*row.small) == nullptr || !shown(*row.small).isVisible(),
                  true)
            << row.name;
        (this->*row.open)();
        auto& small = shown(*row.small);
        EXPECT_TRUE(small.isVisible()) << row.name;
        EXPECT_TRUE(small.isWindow()) << row.name;
        EXPECT_TRUE(small.windowFlags().testFlag(Qt::WindowStaysOnTopHint)) << row.name;
        EXPECT_EQ(small.isModal(), row.modal) << row.name;
        EXPECT_EQ(small.windowTitle(), desktop::to_qt(row.title)) << row.name;
        EXPECT_EQ(row.small->Stacking.get(), screen::Stacking::topmost) << row.name;
        small.close();
    }
}

TEST_F(SmallWindows, EachLeavesTheChartInSight) {
    auto const& chart = widget(form().Picture_KUNDALI);
    QRect const seen{chart.mapToGlobal(QPoint{}), chart.size()};
    for (auto const& row : rows()) {
        (this->*row.open)();
        auto const& small = shown(*row.small);
        EXPECT_FALSE(seen.intersects(QRect{small.mapToGlobal(QPoint{}), small.size()}))
            << row.name << " at " << small.x() << ',' << small.y();
        shown(*row.small).close();
    }
}

TEST_F(SmallWindows, EachClosesByItsFrameAndItsMarkFollows) {
    for (auto const& row : rows()) {
        (this->*row.open)();
        QAction const* action = nullptr;
        if (row.mark != nullptr) {
            action = window().findChild<QAction*>(desktop::to_qt(row.mark->name()));
            EXPECT_TRUE(action->isChecked()) << row.name;
        }
        shown(*row.small).close();
        EXPECT_FALSE(shown(*row.small).isVisible()) << row.name;
        EXPECT_FALSE(row.small->Visible) << row.name;
        if (action != nullptr) {
            EXPECT_FALSE(action->isChecked()) << row.name;
        }
        (this->*row.open)();
        EXPECT_TRUE(shown(*row.small).isVisible()) << row.name << " a second time";
        shown(*row.small).close();
    }
}

TEST_F(SmallWindows, EachHasTheGroundOfTheScheme) {
    for (auto const& [entry, ground] :
         {std::pair{&form().MnuMauve_cycle, QColor{0xCC, 0xB2, 0xFC}},
          std::pair{&form().MnuAzur_Aum, QColor{0xB4, 0xCE, 0xFC}}}) {
        choose_menu(*entry);
        for (auto const& row : rows()) {
            (this->*row.open)();
            auto const* canvas = shown(*row.small).findChild<QWidget*>("canvas");
            ASSERT_NE(canvas, nullptr);
            EXPECT_EQ(canvas->palette().color(QPalette::Window), ground) << row.name;
            shown(*row.small).close();
        }
    }
}

TEST_F(SmallWindows, TheirPartsLieInsideThem) {
    for (auto const& row : rows()) {
        (this->*row.open)();
        for (auto const* control : row.small->controls()) {
            auto const* widget = shown(*row.small).widget(*control);
            if (widget == nullptr || !widget->isVisible()) continue;
            EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
                << row.name << ' ' << control->full_name();
        }
        shown(*row.small).close();
    }
}

TEST_F(SmallWindows, TheListsHaveReadableRows) {
    open_cycle();
    open_lords();
    for (screen::List const* list : {&program().affiche_cycle.List_periode,
                                     &program().frm_seigneur_jour.List_SeigneurJour}) {
        auto& view = part<QListView>(*list);
        ASSERT_EQ(view.model()->rowCount(), list->count());
        QFontMetrics const metrics{view.font()};
        EXPECT_GE(metrics.height(), 12);
        for (int i = 0; i < 40; ++i) {
            auto const index = view.model()->index(i, 0);
            EXPECT_GE(view.sizeHintForIndex(index).height(), metrics.height());
            std::string const text = list->entries()[static_cast<std::size_t>(i)];
            EXPECT_EQ(index.data().toString(), desktop::to_qt(text));
            EXPECT_LE(metrics.horizontalAdvance(index.data().toString()),
                      view.viewport()->width())
                << text;
        }
        EXPECT_NE(view.palette().color(QPalette::Text), view.palette().color(QPalette::Base));
    }
}

TEST_F(SmallWindows, TheCycleListShowsTheLineOfTheYear) {
    open_cycle();
    auto& view = part<QListView>(program().affiche_cycle.List_periode);
    ASSERT_TRUE(view.currentIndex().isValid());
    EXPECT_TRUE(view.currentIndex().data().toString().startsWith("001   "));
    EXPECT_TRUE(view.selectionModel()->isSelected(view.currentIndex()));
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
}

TEST_F(SmallWindows, TheCycleListScrollsToALateYear) {
    session().act([&](screen::User& user) { user.set_position(form().HScroll_age, 340); });
    click(form().Command2);
    open_cycle();
    auto& view = part<QListView>(program().affiche_cycle.List_periode);
    ASSERT_TRUE(view.currentIndex().isValid());
    EXPECT_TRUE(view.currentIndex().data().toString().startsWith("340   "));
    EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
}

TEST_F(SmallWindows, ADayClickedInTheCalendarIsTheOneChosen) {
    open_calendar();
    session().act([&](screen::User& user) {
        user.choose(calendar().cAn, "2024");
        user.choose(calendar().cMois, "Février");
    });
    // 1 February 2024 is a Thursday.
    press_on(calendar().btnJour(3 + 28));
    auto const& date = part<LabelWidget>(calendar().lblDate);
    EXPECT_EQ(date.look().text, "jeudi 29 février 2024");
    press_on(calendar().btnJour(3 + 29));
    EXPECT_EQ(date.look().text, "vendredi 01 mars 2024");
    EXPECT_EQ(part<QComboBox>(calendar().cMois).currentText(), "Mars");
    EXPECT_EQ(part(calendar().btnJour(4)).toolTip(), "vendredi 01 mars 2024");
}

TEST_F(SmallWindows, ADropDownOfTheCalendarIsChosenByKeyboard) {
    open_calendar();
    session().act([&](screen::User& user) {
        user.choose(calendar().cAn, "2024");
        user.choose(calendar().cMois, "Mars");
    });
    press_on(calendar().btnJour(4 + 30));
    auto& month = part<QComboBox>(calendar().cMois);
    EXPECT_EQ(month.count(), 12);
    QTest::keyClick(&month, Qt::Key_Down);
    EXPECT_EQ(month.currentText(), "Avril");
    EXPECT_EQ(calendar().lblDate.Caption.get(), "mardi 30 avril 2024");
    auto& year = part<QComboBox>(calendar().cAn);
    QTest::keyClick(&year, Qt::Key_Up);
    EXPECT_EQ(year.currentText(), "2023");
    EXPECT_EQ(calendar().lblDate.Caption.get(), "dimanche 30 avril 2023");
}

TEST_F(SmallWindows, BeyondItsYearsTheCalendarsYearListIsBlank) {
    open_calendar();
    session().act([&](screen::User& user) {
        user.choose(calendar().cAn, "2199");
        user.choose(calendar().cMois, "Décembre");
    });
    press_on(calendar().btnJour(41));
    EXPECT_EQ(part<QComboBox>(calendar().cAn).currentIndex(), -1);
    EXPECT_EQ(part<QComboBox>(calendar().cMois).currentText(), "Janvier");
}

TEST_F(SmallWindows, TheSwitchesOfTheCalendarTurnBySpaceAndByMouse) {
    open_calendar();
    for (screen::CheckBox* box : {&calendar().chkWeek, &calendar().chkFerie}) {
        auto& check = part<QCheckBox>(*box);
        check.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&check, Qt::Key_Space);
        EXPECT_TRUE(check.isChecked()) << box->name();
        EXPECT_EQ(box->Value.get(), 1) << box->name();
        QTest::mouseClick(&check, Qt::LeftButton, Qt::NoModifier,
                          QPoint{8, check.height() / 2});
        EXPECT_FALSE(check.isChecked()) << box->name();
        EXPECT_EQ(box->Value.get(), 0) << box->name();
    }
}

TEST_F(SmallWindows, TheCalendarComesBackToTodayByItsButton) {
    open_calendar();
    session().act([&](screen::User& user) { user.choose(calendar().cAn, "1999"); });
    press_on(calendar().BtnToday);
    EXPECT_EQ(part<QComboBox>(calendar().cAn).currentText(),
              QString::number(QDate::currentDate().year()));
}

TEST_F(SmallWindows, AnAgeIsPromptedUnderThePointerAndTakenByAClick) {
    open_ages();
    auto& ages = program().choix_age;
    EXPECT_EQ(QApplication::activeModalWidget(), &shown(ages));
    auto& cell = part<LabelWidget>(ages.Label2(36));
    QPointF const centre = cell.rect().center();
    QMouseEvent move{QEvent::MouseMove, centre,       cell.mapToGlobal(centre),
                     Qt::NoButton,      Qt::NoButton, Qt::NoModifier};
    QApplication::sendEvent(&cell, &move);
    EXPECT_EQ(part<LabelWidget>(ages.Label_choix_age).look().text, "36 ans");
    QTest::mouseClick(&cell, Qt::LeftButton);
    EXPECT_FALSE(shown(ages).isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(dynamic_cast<QScrollBar&>(widget(form().HScroll_age)).value(), 36);
    EXPECT_EQ(form().HScroll_age.Tag.get(), "VERT");
}

TEST_F(SmallWindows, ThePagesOfAgesTurnByTheirPictures) {
    open_ages();
    auto& ages = program().choix_age;
    press_on(ages.Image1);
    EXPECT_EQ(part<LabelWidget>(ages.Label2(50)).look().text, "350");
    EXPECT_EQ(part<LabelWidget>(ages.Label2(51)).look().text, "");
    press_on(ages.Image2);
    EXPECT_EQ(part<LabelWidget>(ages.Label2(1)).look().text, "01");
    shown(ages).close();
}

TEST_F(SmallWindows, TheMainWindowTakesNothingWhileAnAgeIsChosen) {
    open_ages();
    click(form().Btn_cycle_partiel);
    EXPECT_FALSE(program().periods.cycle_partiel_actif);
    shown(program().choix_age).close();
    click(form().Btn_cycle_partiel);
    EXPECT_TRUE(program().periods.cycle_partiel_actif);
}

TEST_F(SmallWindows, TheLordsCloseByTheirButton) {
    open_lords();
    press_on(program().frm_seigneur_jour.Btn_Fermez);
    EXPECT_FALSE(shown(program().frm_seigneur_jour).isVisible());
}

TEST_F(SmallWindows, TheMainWindowWorksOnBesideThem) {
    open_calendar();
    open_cycle();
    open_lords();
    click(form().Label_mois(3));
    EXPECT_EQ(program().consultation.colonne_mois, 3);
    EXPECT_TRUE(shown(program().affiche_cycle).isVisible());
}

TEST_F(SmallWindows, ThePalaceShowsItsFactsAndGoesWithAGeneration) {
    open_palace();
    auto& palace = program().palais_du_destin;
    for (int i = 0; i < 5; ++i) {
        auto const& fact = part<LabelWidget>(palace.Label_Palais_du_destin(i));
        EXPECT_FALSE(fact.look().text.isEmpty()) << i;
        EXPECT_EQ(fact.narrowing(), 1) << i;
    }
    click(form().Command2);
    EXPECT_FALSE(shown(palace).isVisible());
    EXPECT_FALSE(window().findChild<QAction*>("Mnu_palaisdestin")->isChecked());
}

TEST_F(SmallWindows, NoCaptionInThemIsCut) {
    for (auto const& row : rows()) {
        (this->*row.open)();
        for (auto const* control : row.small->controls()) {
            auto const* label = dynamic_cast<screen::Label const*>(control);
            if (label == nullptr) continue;
            EXPECT_GE(part<LabelWidget>(*label).narrowing(), 0.8) << label->full_name();
        }
        shown(*row.small).close();
    }
}

}  // namespace

}  // namespace navarun::test
