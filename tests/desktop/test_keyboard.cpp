// What the pointer does, done with the keyboard alone.
#include <QApplication>
#include <QClipboard>
#include <QFocusFrame>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>
#include <set>

#include "desktop/label_widget.h"
#include "files/durable_file.h"
#include "files/folders.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

class Keyboard : public Window {
  protected:
    QWidget* keyboard() { return QApplication::focusWidget(); }

    // Tab, until the keyboard is there; fails the test where it never comes.
    void tab_to(screen::Control const& control) {
        for (int pressed = 0; pressed < 100; ++pressed) {
            if (keyboard() == shown(control)) return;
            press(Qt::Key_Tab);
        }
        FAIL() << control.full_name() << " is not reached";
    }

    QWidget* shown(screen::Control const& control) {
        return session().window(control.form())->widget(control);
    }

    void open(screen::Form& form) {
        auto& opened = *session().window(form);
        opened.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&opened));
    }

    void write_file_of(std::string const& path, std::string const& bytes) {
        auto const file = session().program().path_of(path);
        std::filesystem::create_directories(file.parent_path());
        write_file(file, bytes, path);
    }

    // As the desktop's browser of files does.
    void copy_file(std::filesystem::path const& file) {
        auto* const copied = new QMimeData;
        copied->setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
        QApplication::clipboard()->setMimeData(copied);
    }

    std::string const& clipboard() {
        m_clipboard = QApplication::clipboard()->text().toStdString();
        return m_clipboard;
    }

  private:
    std::string m_clipboard;
};

TEST_F(Keyboard, EveryControlThatAnswersToThePointerIsReached) {
    std::set<QWidget*> visited;
    press(Qt::Key_Tab);
    for (QWidget* first = keyboard(); visited.empty() || keyboard() != first;) {
        visited.insert(keyboard());
        press(Qt::Key_Tab);
        ASSERT_LE(visited.size(), 100U);
    }
    for (auto const* control : form().controls()) {
        if (!control->can_be_used() || shown(*control) == nullptr) continue;
        bool const answers =
            control->on_click || control->on_double_click || control->takes_focus();
        // Of an array one member is a stop, the arrows lead to the others.
        bool const cell = control->index() && control->kind() == screen::Kind::label;
        if (!answers || cell) continue;
        EXPECT_TRUE(visited.contains(shown(*control))) << control->full_name();
    }
    EXPECT_LT(visited.size(), 50U) << "the cells of a row are one stop together";
}

TEST_F(Keyboard, BackTabGoesTheSameWayBack) {
    std::vector<QWidget*> way;
    for (int i = 0; i < 30; ++i) {
        way.push_back(keyboard());
        press(Qt::Key_Tab);
    }
    for (auto step = way.rbegin(); step != way.rend(); ++step) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        ASSERT_EQ(keyboard(), *step) << keyboard()->objectName().toStdString();
    }
}

TEST_F(Keyboard, ALabelTakesTheKeyboardWithoutTheFocusOfTheModel) {
    click(form().Combo_moisNaiss);
    type("1");
    auto& label = widget(form().Label_zodiac);
    label.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(keyboard(), &label);
    // A half typed month is completed when the field is left, and it has not been.
    EXPECT_EQ(form().Combo_moisNaiss.Text.get(), "1");
    EXPECT_EQ(session().program().screen.focus(), &form().Combo_moisNaiss);
    session().act([&](screen::User&) { form().Label_Nak.Caption = "x"; });
    EXPECT_EQ(keyboard(), &label) << "what changes elsewhere leaves the keyboard where it is";
    press(Qt::Key_Escape);
    EXPECT_EQ(keyboard(), &widget(form().Combo_moisNaiss));
    EXPECT_EQ(form().Combo_moisNaiss.Text.get(), "1");
}

TEST_F(Keyboard, TheKeyboardFollowsAFocusThatTheProgramMoves) {
    widget(form().Label_zodiac).setFocus(Qt::TabFocusReason);
    session().act(
        [&](screen::User&) { session().program().screen.move_focus(form().Text_Note); });
    EXPECT_EQ(keyboard(), &widget(form().Text_Note));
}

TEST_F(Keyboard, EnterOnAMonthPicksItAndTheArrowsWalkTheRing) {
    tab_to(form().Label_Dasha(1));
    press(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), &widget(form().Label_mois(1)));
    for (int const cell : {2, 3}) {
        press(Qt::Key_Right);
        EXPECT_EQ(keyboard(), &widget(form().Label_mois(cell))) << cell;
    }
    press(Qt::Key_Down);
    EXPECT_EQ(keyboard(), &widget(form().Label_mois(4)));
    press(Qt::Key_Left);
    EXPECT_EQ(keyboard(), &widget(form().Label_mois(11))) << "across the free centre";
    press(Qt::Key_Up);
    EXPECT_EQ(keyboard(), &widget(form().Label_mois(12)));
    press(Qt::Key_Return);
    EXPECT_EQ(session().program().consultation.colonne_mois, 12);
    EXPECT_EQ(keyboard(), &widget(form().Label_mois(12)));
}

TEST_F(Keyboard, TabStaysInTheCell) {
    tab_to(form().Label_Dasha(1));
    press(Qt::Key_Right);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), &widget(form().Label_Solaire(2)));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(keyboard(), &widget(form().Label_mois(2)));
}

TEST_F(Keyboard, ShiftEnterIsTheDoubleClick) {
    widget(form().Label_Solaire(10)).setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_FALSE(form().Text_definition_palais.Visible);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_TRUE(form().Text_definition_palais.Visible);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_FALSE(form().Text_definition_palais.Visible);
}

TEST_F(Keyboard, AnAgeIsChosenAndItsWindowLeftByEscape) {
    tab_to(form().Label_age);
    press(Qt::Key_Return);
    auto& chooser = session().program().choix_age;
    ASSERT_TRUE(chooser.Visible);
    open(chooser);
    tab_to(chooser.Label2(1));
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(keyboard(), shown(chooser.Label2(12)));
    EXPECT_EQ(chooser.Label_choix_age.Caption.get(), "12 ans") << "as under the pointer";
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), shown(chooser.Image2));
    press(Qt::Key_Space);
    EXPECT_EQ(chooser.Label2(12).Caption.get(), "112");
    press(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), shown(chooser.Label2(12))) << "where the table was left";
    press(Qt::Key_Return);
    EXPECT_FALSE(chooser.Visible);
    EXPECT_EQ(form().HScroll_age.Value.get(), 112);

    open(form());
    tab_to(form().Label_age);
    press(Qt::Key_Return);
    ASSERT_TRUE(chooser.Visible);
    open(chooser);
    tab_to(chooser.Label2(12));
    press(Qt::Key_Escape);
    EXPECT_FALSE(chooser.Visible);
    EXPECT_EQ(form().HScroll_age.Value.get(), 112);
}

TEST_F(Keyboard, ARecordIsMovedToTheOtherFolder) {
    std::string const record = "\"A\",\"B\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"\"\r\n";
    write_file_of("RESSOURCES/DATA1/B A.fcy", record);
    tab_to(form().Charge(1));
    press(Qt::Key_Return);
    ASSERT_TRUE(form().Frame_FileFichier.Visible);
    widget(form().File_Fichier).setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    ASSERT_EQ(form().File_Fichier.selected(), "B A.fcy");
    press(Qt::Key_Control);
    ASSERT_NE(session().program().screen.dragged(), nullptr);
    press(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), &widget(form().Charge(1)));
    press(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), &widget(form().Charge(2)));
    EXPECT_EQ(session().program().screen.focus(), &form().File_Fichier);
    press(Qt::Key_Return);
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
    EXPECT_TRUE(FileExists(session().program().path_of("RESSOURCES/DATA2/B A.fcy")));
    EXPECT_FALSE(FileExists(session().program().path_of("RESSOURCES/DATA1/B A.fcy")));
}

TEST_F(Keyboard, EscapeEndsTheDragAndGivesTheKeyboardBackToTheList) {
    write_file_of("RESSOURCES/DATA1/B A.fcy",
                  "\"A\",\"B\",\"01\",\"01\",\"19\",\"00\",0,\"\",\"\"\r\n");
    click(form().Charge(1));
    widget(form().File_Fichier).setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    press(Qt::Key_Control);
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
    EXPECT_EQ(keyboard(), &widget(form().File_Fichier));
    EXPECT_TRUE(FileExists(session().program().path_of("RESSOURCES/DATA1/B A.fcy")));
}

TEST_F(Keyboard, AnAddressIsOpenedByEnter) {
    click(form().Bouton_Internet);
    bool opened = false;
    form().List_Internet.on_double_click = [&] { opened = true; };
    widget(form().List_Internet).setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_FALSE(opened);
    press(Qt::Key_Return);
    EXPECT_TRUE(opened);
}

TEST_F(Keyboard, PassingThroughTheFieldOfAnAddressMarksNothingAsUnsaved) {
    click(form().Bouton_Internet);
    widget(form().Text_New_URL).setFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    EXPECT_NE(keyboard(), &widget(form().Text_New_URL));
    EXPECT_EQ(form().Command_Disk_Vert.Picture.get().name(), "Diskette(0)");
    widget(form().Text_New_URL).setFocus(Qt::TabFocusReason);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(form().Command_Disk_Vert.Picture.get().name(), "Diskette(0)");
    widget(form().Text_New_URL).setFocus(Qt::TabFocusReason);
    type("a");
    EXPECT_EQ(form().Command_Disk_Vert.Picture.get().name(), "Diskette(1)");
}

TEST_F(Keyboard, TheWidthOfAnArrowIsChosenByTheArrowsAndEnter) {
    choose_menu(form().MnuFleche);
    auto& window_of_arrows = session().program().fleche;
    open(window_of_arrows);
    shown(window_of_arrows.Picture1)->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 10; ++i) press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_EQ(session().program().arrow.epaisseur_fleche, 1);
    for (int i = 0; i < 4; ++i) press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_GT(session().program().arrow.epaisseur_fleche, 1);
}

// To the right by a tenth of the chart a key, and down by a pixel with Control.
TEST_F(Keyboard, AnArrowIsDrawnByTheArrowsAndEnter) {
    choose_menu(form().MnuFleche);
    open(form());
    tab_to(form().Picture_KUNDALI);
    for (int i = 0; i < 2; ++i) press(Qt::Key_Left);
    press(Qt::Key_Return);
    for (int i = 0; i < 4; ++i) press(Qt::Key_Right);
    press(Qt::Key_Down, Qt::ControlModifier);
    auto const& chart = form().Picture_KUNDALI;
    EXPECT_FALSE(chart.lines(screen::Layer::rubber).empty()) << "seen on its way";
    EXPECT_TRUE(chart.lines(screen::Layer::persistent).empty());
    press(Qt::Key_Return);
    auto const& drawn = chart.lines(screen::Layer::persistent);
    ASSERT_EQ(drawn.size(), 4U) << "a shaft, its dot and the two sides of the head";
    double const tenth = chart.Width / 10.0;
    EXPECT_NEAR(drawn[0].x1, chart.Width / 2.0 - 2 * tenth, 15);
    EXPECT_NEAR(drawn[0].x2, chart.Width / 2.0 + 2 * tenth, 15);
    EXPECT_NEAR(drawn[0].y2 - drawn[0].y1, 15, 1);
}

TEST_F(Keyboard, AColourOfTheArrowsIsChosen) {
    choose_menu(form().MnuFleche);
    auto& window_of_arrows = session().program().fleche;
    open(window_of_arrows);
    shown(window_of_arrows.Label_couleur(5))->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(keyboard(), shown(window_of_arrows.Label_couleur(10)));
    press(Qt::Key_Return);
    EXPECT_EQ(session().program().arrow.couleur_fleche, screen::standard_colour(10));
}

TEST_F(Keyboard, TheDaysOfTheCalendarAreWalkedByTheArrows) {
    choose_menu(form().MnuCalendrier);
    auto& calendar = session().program().frm_calend;
    open(calendar);
    shown(calendar.btnJour(16))->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(keyboard(), shown(calendar.btnJour(23)));
    press(Qt::Key_Left);
    EXPECT_EQ(keyboard(), shown(calendar.btnJour(22)));
    press(Qt::Key_Tab);
    EXPECT_EQ(keyboard(), shown(calendar.chkWeek));
}

TEST_F(Keyboard, APictureCopiedElsewhereBecomesThePortrait) {
    TemporaryFolder elsewhere;
    auto const file = elsewhere.path() / "Marie.jpg";
    QImage portrait{60, 80, QImage::Format_RGB32};
    portrait.fill(Qt::blue);
    ASSERT_TRUE(portrait.save(QString::fromStdString(file.string())));
    copy_file(file);
    widget(form().Picture_PHOTO).setFocus(Qt::TabFocusReason);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form().Picture_PHOTO.Picture.get().name(), "file:Marie.jpg");
    EXPECT_TRUE(FileExists(session().program().path_of("RESSOURCES/IMAGE/Marie.jpg")));
}

TEST_F(Keyboard, ATextCopiedElsewhereIsNoPortrait) {
    TemporaryFolder elsewhere;
    auto const file = elsewhere.path() / "texte.txt";
    write_file(file, "Un texte.", "texte.txt");
    copy_file(file);
    std::string const before = form().Picture_PHOTO.Picture.get().name();
    widget(form().Picture_PHOTO).setFocus(Qt::TabFocusReason);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form().Label_message.Caption.get(), "Ce fichier n'est pas une image !");
    EXPECT_EQ(form().Picture_PHOTO.Picture.get().name(), before);
}

TEST_F(Keyboard, AnAccentCopiedAsACharacterOfItsOwnJoinsItsLetter) {
    QApplication::clipboard()->setText(QStringLiteral("Rene\u0301e"));
    widget(form().Text_prenom).setFocus(Qt::TabFocusReason);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form().Text_prenom.Text.get(), "Renée");
    EXPECT_EQ(form().Text_prenom.selection().start, 5);
}

TEST_F(Keyboard, TextsThatAreOnlyReadCanBeCopied) {
    auto& text = dynamic_cast<QPlainTextEdit&>(widget(form().Text_zodiac));
    text.setFocus(Qt::TabFocusReason);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), text.toPlainText().toStdString());
    EXPECT_FALSE(clipboard().empty());
    widget(form().Label_zodiac).setFocus(Qt::TabFocusReason);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "19 ° Arc");
}

TEST_F(Keyboard, ALabelOffersItsTextForCopying) {
    auto& label = widget(form().Label_nomNakshatra);
    QContextMenuEvent asked{QContextMenuEvent::Mouse, QPoint{4, 4},
                            label.mapToGlobal(QPoint{4, 4})};
    QApplication::sendEvent(&label, &asked);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().front()->text().remove(QLatin1Char('&')), "Copier");
    menu->actions().front()->trigger();
    menu->close();
    EXPECT_EQ(clipboard(), form().Label_nomNakshatra.Caption.get());
}

TEST_F(Keyboard, F10GoesToTheMenuBarAndThePlaceIsSeen) {
    auto& bar = *window().menuBar();
    QImage const before = bar.grab().toImage();
    press(Qt::Key_F10);
    EXPECT_EQ(bar.activeAction(), bar.actions().front());
    EXPECT_NE(bar.grab().toImage(), before);
    QTest::keyClick(&bar, Qt::Key_Escape);
    EXPECT_EQ(session().program().screen.focus(), &form().Text_prenom);
}

TEST_F(Keyboard, TheRingGoesRoundWhateverHasTheKeyboard) {
    auto* const ring = window().findChild<QFocusFrame*>();
    ASSERT_NE(ring, nullptr);
    auto const round = [&](screen::Control const& control) {
        QWidget const& shown = widget(control);
        QRect const place{shown.mapTo(ring->parentWidget(), QPoint{0, 0}), shown.size()};
        // The lowest controls stand a pixel beyond the window's edge.
        return place.intersected(ring->parentWidget()->rect());
    };
    for (screen::Control const* control :
         {static_cast<screen::Control const*>(&form().Text_nom),
          static_cast<screen::Control const*>(&form().Combo_moisNaiss),
          static_cast<screen::Control const*>(&form().HScroll_age),
          static_cast<screen::Control const*>(&form().Text_Note),
          static_cast<screen::Control const*>(&form().Command2),
          static_cast<screen::Control const*>(&form().Label_mois(6))}) {
        widget(*control).setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(ring->isVisible()) << control->full_name();
        EXPECT_TRUE(ring->geometry().contains(round(*control))) << control->full_name();
    }
    // The label grows with its text, and the ring with it.
    session().act([&](screen::User&) { form().Label_mois(6).Caption = "Chandra et Chandra"; });
    EXPECT_TRUE(ring->geometry().contains(round(form().Label_mois(6))));
}

TEST_F(Keyboard, AMessageLiesOverTheRing) {
    double_click(form().Label_Solaire(10));
    auto const message = [&] {
        return widget(form().frame_messageSauve)
            .parentWidget()
            ->grab(widget(form().frame_messageSauve).geometry())
            .toImage();
    };
    session().act([&](screen::User&) { form().frame_messageSauve.Visible = true; });
    QImage const before = message();
    widget(form().Text_definition_palais).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(message(), before);
}

TEST_F(Keyboard, WhatClosesGivesTheKeyboardToNobodyElse) {
    click(form().Charge(1));
    widget(form().File_Fichier).setFocus(Qt::TabFocusReason);
    ASSERT_EQ(session().program().screen.focus(), &form().File_Fichier);
    session().act([&](screen::User&) { form().Frame_FileFichier.Visible = false; });
    EXPECT_EQ(session().program().screen.focus(), &form().File_Fichier);
}

// Where the bar of the years had the keyboard at once, Space would take the periods off the
// page.
TEST_F(Keyboard, ASmallWindowBeginsWhereItsTabDoes) {
    auto const* const focused = session().program().screen.focus();
    auto& options = session().program().option_impression;
    choose_menu(form().MnuApercu_Impression);
    open(options);
    EXPECT_EQ(keyboard(), shown(options.Check_Mahadasha))
        << keyboard()->objectName().toStdString();
    EXPECT_EQ(session().program().screen.focus(), focused) << "nothing has been done in it yet";
    EXPECT_TRUE(options.Check_periode.Value.get());
    press(Qt::Key_Space);
    EXPECT_FALSE(options.Check_Mahadasha.Value.get());
}

TEST_F(Keyboard, AScreenReaderMovesTheFocus) {
    widget(form().Combo_jourNaiss).setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(session().program().screen.focus(), &form().Combo_jourNaiss);
}

TEST_F(Keyboard, TheNextWindowComesByF6) {
    choose_menu(form().MnuCalendrier);
    auto& calendar = *session().window(session().program().frm_calend);
    open(form());
    press(Qt::Key_F6);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&calendar));
    press(Qt::Key_F6);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
}

}  // namespace

}  // namespace navarun::test
