// What a practitioner does at the window, with real key and mouse events.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTimer>
#include <QUrl>

#include "desktop/label_widget.h"
#include "files/durable_file.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

TEST_F(Window, OpensOnTheFinishedGridWithTheKeyboardInTheFirstName) {
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowTitle(), "N.A.V.A.R.U.N");
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().Text_prenom));
    auto const& sun = static_cast<desktop::LabelWidget&>(widget(form().Label_zodiac));
    EXPECT_EQ(sun.look().text, "19 °  Arc");
    EXPECT_EQ(dynamic_cast<QScrollBar&>(widget(form().HScroll_age)).value(), 1);
}

TEST_F(Window, ABirthDateTypedWithoutATabBecomesTheGridOfThatPerson) {
    click(form().Combo_jourNaiss);
    type("17051962");
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().Text_Note));
    EXPECT_EQ(form().HScroll_age.Tag.get(), "ROUGE");
    click(form().Command2);
    EXPECT_EQ(form().HScroll_age.Tag.get(), "VERT");
    EXPECT_EQ(form().Label_zodiac.Caption.get(), "4 °  Taureau");
    auto const& mansion = static_cast<desktop::LabelWidget&>(widget(form().Label_nomNakshatra));
    EXPECT_EQ(mansion.look().text, "3 Krittika");
}

TEST_F(Window, WhatIsNoDigitNeverEntersADateField) {
    click(form().Combo_moisNaiss);
    type("a-é/ ");
    press(Qt::Key_Backspace);
    press(Qt::Key_Delete);
    QApplication::clipboard()->setText(QStringLiteral("07"));
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(form().Combo_moisNaiss.Text.get(), "01");
    EXPECT_EQ(dynamic_cast<QComboBox&>(widget(form().Combo_moisNaiss)).currentText(), "01");
    EXPECT_EQ(session().program().date_entry.nombre_touches, 0);
}

// A cell of a sheet is copied with its line end, which no file name bears.
TEST_F(Window, ANamePastedWithItsLineEndIsTheName) {
    form().Text_nom.Text = "";
    click(form().Text_nom);
    QApplication::clipboard()->setText(QStringLiteral("Dupont\tde Nemours\r\n"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form().Text_nom.Text.get(), "Dupont de Nemours");
    EXPECT_EQ(static_cast<QLineEdit&>(widget(form().Text_nom)).text(),
              QStringLiteral("Dupont de Nemours"));
}

// Where marking a text is copying it, the middle button pastes it.
TEST_F(Window, AnotherButtonThanTheLeftOneDoesNothingInADateField) {
    auto& box = dynamic_cast<QComboBox&>(widget(form().Combo_moisNaiss));
    auto& line = *box.lineEdit();
    click(form().Combo_moisNaiss);
    ASSERT_EQ(line.selectedText(), "01");
    auto& copied = *QApplication::clipboard();
    for (auto const button : {Qt::MiddleButton, Qt::RightButton}) {
        for (auto const type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            if (copied.supportsSelection()) {
                copied.setText(QStringLiteral("07"), QClipboard::Selection);
            }
            QPointF const end{line.width() - 2.0, line.height() / 2.0};
            bool const held = type != QEvent::MouseButtonRelease;
            QMouseEvent event{
                type,          end, line.mapToGlobal(end), button, held ? button : Qt::NoButton,
                Qt::NoModifier};
            QApplication::sendEvent(&line, &event);
            EXPECT_EQ(line.text(), "01") << button << ' ' << type;
            EXPECT_EQ(line.selectedText(), "01") << button << ' ' << type;
        }
    }
    EXPECT_EQ(form().Combo_moisNaiss.Text.get(), "01");
}

TEST_F(Window, DigitsOfAnInputMethodPassTheSameFilter) {
    click(form().Combo_moisNaiss);
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("x07"));
    QApplication::sendEvent(&widget(form().Combo_moisNaiss), &event);
    EXPECT_EQ(form().Combo_moisNaiss.Text.get(), "07");
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().Combo_AnNaiss1));
}

TEST_F(Window, ARepairedDateFieldShowsTheRepairAndOffersItToTheNextDigit) {
    click(form().Combo_moisNaiss);
    type("5");
    auto const& line = *dynamic_cast<QComboBox&>(widget(form().Combo_moisNaiss)).lineEdit();
    EXPECT_EQ(line.text(), "12");
    EXPECT_EQ(line.selectedText(), "12");
}

TEST_F(Window, TabFromAHalfTypedFieldFillsInToday) {
    click(form().Combo_AnNaiss2);
    type("1");
    press(Qt::Key_Tab);
    QString const year = QString::number(QDate::currentDate().year() % 100);
    EXPECT_EQ(dynamic_cast<QComboBox&>(widget(form().Combo_AnNaiss2)).currentText(),
              year.rightJustified(2, QLatin1Char('0')));
}

TEST_F(Window, DownAndUpChooseTheNeighbouringEntry) {
    click(form().Combo_jourNaiss);
    press(Qt::Key_Down);
    EXPECT_EQ(form().Combo_jourNaiss.Text.get(), "02");
    EXPECT_EQ(form().Label_jourdeSemaine.Caption.get(), "Mardi");
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(form().Combo_jourNaiss.Text.get(), "01");
}

TEST_F(Window, TheWheelOverADateFieldChangesNothing) {
    auto& combo = widget(form().Combo_jourNaiss);
    QWheelEvent wheel{QPointF{5, 5},     combo.mapToGlobal(QPointF{5, 5}),
                      QPoint{},          QPoint{0, -120},
                      Qt::NoButton,      Qt::NoModifier,
                      Qt::NoScrollPhase, false};
    QApplication::sendEvent(&combo, &wheel);
    EXPECT_EQ(form().Combo_jourNaiss.Text.get(), "01");
}

TEST_F(Window, TheAgeBarWalksByOneAndByTenAndEnterMakesTheGridFollow) {
    auto& bar = dynamic_cast<QScrollBar&>(widget(form().HScroll_age));
    bar.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(form().Label_age.Caption.get(), "2");
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    EXPECT_EQ(form().Label_age.Caption.get(), "22");
    EXPECT_EQ(form().Label_age.BackColor.get(), screen::Colour(255, 192, 192));
    press(Qt::Key_Return);
    EXPECT_EQ(form().Label_age.BackColor.get(), screen::Colour(192, 255, 192));
    press(Qt::Key_End);
    EXPECT_EQ(form().Label_age.Caption.get(), "350");
    press(Qt::Key_Home);
    EXPECT_EQ(form().Label_age.Caption.get(), "1");
}

TEST_F(Window, DraggingTheThumbShowsEachAgeOnTheWay) {
    auto& bar = dynamic_cast<QScrollBar&>(widget(form().HScroll_age));
    bar.setSliderDown(true);
    bar.setSliderPosition(120);
    EXPECT_EQ(form().Label_age.Caption.get(), "120");
    EXPECT_EQ(form().Label_anneedefile.Caption.get(), "01/01/2020");
    bar.setSliderDown(false);
    EXPECT_EQ(form().HScroll_age.Value.get(), 120);
}

TEST_F(Window, AClickOnAMonthAndAPeriodPicksIt) {
    click(form().Label_mois(3));
    EXPECT_TRUE(form().Label_mois(3).FontBold);
    EXPECT_EQ(session().program().consultation.colonne_mois, 3);
    click(form().Label_Dasha(5));
    EXPECT_EQ(session().program().consultation.colonne_dasha, 5);
}

TEST_F(Window, ADoubleClickOnAPalaceShowsItsDefinitionAndAnotherHidesIt) {
    double_click(form().Label_Solaire(10));
    EXPECT_TRUE(widget(form().Text_definition_palais).isVisible());
    EXPECT_TRUE(dynamic_cast<QPlainTextEdit&>(widget(form().Text_definition_palais))
                    .toPlainText()
                    .startsWith("PALAIS 2 - N - TERRE\n"));
    double_click(form().Label_Solaire(10));
    EXPECT_FALSE(widget(form().Text_definition_palais).isVisible());
}

TEST_F(Window, NamesTakeTheirCapitalsWhenTheFieldIsLeft) {
    click(form().Text_prenom);
    type("jean-pierre dupont");
    press(Qt::Key_Tab);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(widget(form().Text_prenom)).text(),
              "Jean-pierre Dupont");
    EXPECT_EQ(form().Command_Disk_Vert.Picture.get().name(), "Diskette(1)");
}

TEST_F(Window, ANameEditedInItsMiddleKeepsItsCaret) {
    click(form().Text_nom);
    type("Dupnt");
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    type("o");
    auto const& line = dynamic_cast<QLineEdit&>(widget(form().Text_nom));
    EXPECT_EQ(line.text(), "Dupont");
    EXPECT_EQ(line.cursorPosition(), 4);
    EXPECT_EQ(form().Text_nom.Text.get(), "Dupont");
}

TEST_F(Window, ANoteKeepsItsLines) {
    widget(form().Text_Note).setFocus(Qt::TabFocusReason);
    type("un");
    press(Qt::Key_Return);
    type("deux");
    EXPECT_EQ(form().Text_Note.Text.get(), "un\r\ndeux");
}

// A letter that no record holds becomes its nearest, and the next one stands behind it.
TEST_F(Window, ALetterReplacedInTheNoteLeavesTheCaretBehindIt) {
    auto& note = dynamic_cast<QPlainTextEdit&>(widget(form().Text_Note));
    note.setFocus(Qt::TabFocusReason);
    type("un");
    press(Qt::Key_Return);
    type("ab");
    press(Qt::Key_Left);
    type("łz");
    EXPECT_EQ(form().Text_Note.Text.get(), "un\r\nalzb");
    EXPECT_EQ(note.toPlainText(), "un\nalzb");
    EXPECT_EQ(note.textCursor().position(), 6);
}

TEST_F(Window, AnAccentPastedAsACharacterOfItsOwnLeavesTheCaretBehindItsLetter) {
    auto& note = dynamic_cast<QPlainTextEdit&>(widget(form().Text_Note));
    note.setFocus(Qt::TabFocusReason);
    type("ab");
    press(Qt::Key_Left);
    QApplication::clipboard()->setText(QStringLiteral("Rene\u0301e"));
    press(Qt::Key_V, Qt::ControlModifier);
    type("!");
    EXPECT_EQ(form().Text_Note.Text.get(), "aRenée!b");
}

// French writes them before its colons and inside its numbers.
TEST_F(Window, ANoteKeepsItsBlanksThatDoNotBreak) {
    auto& note = dynamic_cast<QPlainTextEdit&>(widget(form().Text_Note));
    std::string const sum = "Prix\u00A0: 10\u00A0000\u00A0F";
    session().act([&](screen::User&) { form().Text_Note.Text = sum; });
    note.setFocus(Qt::TabFocusReason);
    note.moveCursor(QTextCursor::End);
    type("r");
    EXPECT_EQ(form().Text_Note.Text.get(), sum + "r");
    EXPECT_EQ(note.textCursor().position(), 16);
}

TEST_F(Window, AMenuAndASwitchOfWindowsDoNotLeaveAHalfTypedField) {
    click(form().Combo_moisNaiss);
    type("1");
    QFocusEvent popup{QEvent::FocusOut, Qt::PopupFocusReason};
    QApplication::sendEvent(&widget(form().Combo_moisNaiss), &popup);
    QFocusEvent other_window{QEvent::FocusOut, Qt::ActiveWindowFocusReason};
    QApplication::sendEvent(&widget(form().Combo_moisNaiss), &other_window);
    EXPECT_EQ(form().Combo_moisNaiss.Text.get(), "1");
}

TEST_F(Window, TheJulianEntryIsCheckedAndItsMarkShown) {
    choose_menu(form().Mnu_Julien);
    auto const* const action = window().findChild<QAction*>("Mnu_Julien");
    EXPECT_TRUE(action->isChecked());
    EXPECT_TRUE(widget(form().Image_cal_Julien).isVisible());
    click(form().Image_cal_Julien);
    EXPECT_FALSE(action->isChecked());
}

TEST_F(Window, ClosingTheFrameAsksInFrenchAndStaysWhereTheUserDeclines) {
    answer_next_box("Annuler");
    window().close();
    EXPECT_EQ(last_box_title, "QUITTER");
    EXPECT_EQ(last_box_text, "VOULEZ-VOUS QUITTER N.A.V.A.R.U.N ?");
    EXPECT_EQ(last_box_buttons, (QStringList{"OK", "Annuler"}));
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(session().exit_status(), std::nullopt);
}

TEST_F(Window, LeavingByTheMenuEndsTheProgram) {
    answer_next_box("OK");
    choose_menu(form().MnuQuitter);
    EXPECT_EQ(session().exit_status(), 0);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(Window, AnUnreadableBirthDateIsToldAndChangesNothing) {
    session().act([&](screen::User& user) { user.set_text(form().Combo_jourNaiss, ""); });
    std::string const mansion = form().Label_nomNakshatra.Caption.get();
    answer_next_box("OK");
    click(form().Command2);
    EXPECT_EQ(last_box_title, "Erreur");
    EXPECT_EQ(last_box_text, "Date de naissance invalide !");
    EXPECT_EQ(last_box_buttons, QStringList{"OK"});
    EXPECT_EQ(form().HScroll_age.Tag.get(), "ROUGE");
    EXPECT_EQ(form().Label_nomNakshatra.Caption.get(), mansion);
}

TEST_F(Window, TabVisitsTheEntryFieldsInTheOrderOfTheirUse) {
    click(form().Text_prenom);
    for (screen::Control const* next :
         {static_cast<screen::Control const*>(&form().Text_nom),
          static_cast<screen::Control const*>(&form().Combo_jourNaiss),
          static_cast<screen::Control const*>(&form().Combo_moisNaiss),
          static_cast<screen::Control const*>(&form().Combo_AnNaiss1),
          static_cast<screen::Control const*>(&form().Combo_AnNaiss2),
          static_cast<screen::Control const*>(&form().HScroll_age),
          static_cast<screen::Control const*>(&form().Text_zodiac)}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &widget(*next)) << next->full_name();
        EXPECT_EQ(session().program().screen.focus(), next);
    }
    // The labels are read on the way; the focus stays where it was.
    for (screen::Label const* label :
         {&form().Label_zodiac, &form().Label_nomNakshatra, &form().Label_Nak,
          &form().Label_jourdeSemaine, &form().Label_divinite, &form().Label_dinanka_Purnanka,
          &form().Label_Lal_Kitab, &form().Label_age}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &widget(*label)) << label->full_name();
        EXPECT_EQ(session().program().screen.focus(), &form().Text_zodiac);
    }
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().Command2));
    EXPECT_EQ(session().program().screen.focus(), &form().Command2);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().Picture_KUNDALI));
    EXPECT_EQ(session().program().screen.focus(), &form().Command2);
}

// The message of an age beyond the table waits; meanwhile the window lives, and may be left.
TEST_F(Window, LeavingDuringATransientMessageAbandonsIt) {
    click(form().Combo_jourNaiss);
    type("01011600");
    bool shown = false;
    QTimer::singleShot(200, &window(), [&] {
        shown = widget(form().frame_messageSauve).isVisible();
        answer_next_box("OK");
        choose_menu(form().MnuQuitter);
    });
    click(form().Command_DateNow);
    EXPECT_TRUE(shown);
    EXPECT_EQ(session().exit_status(), 0);
    EXPECT_EQ(ends, 1);
}

// Who started the program learns that it failed, whatever was waiting when it did.
TEST_F(Window, AFatalErrorDuringATransientMessageEndsTheRunAsAFailure) {
    std::string const name = "Portrait.jpg";
    write_file(session().program().path_of("RESSOURCES/IMAGE/" + name), "no picture", name);
    click(form().Bouton_Image);
    bool shown = false;
    QTimer::singleShot(200, &window(), [&] {
        shown = widget(form().frame_messageSauve).isVisible();
        answer_next_box("OK");
        session().act([&](screen::User& user) {
            user.choose(form().File_Fichier, name);
            user.double_click(form().File_Fichier);
        });
    });
    // Nothing has been chosen: a message tells so for a while.
    click(form().Command_reset);
    EXPECT_TRUE(shown);
    EXPECT_TRUE(last_box_text.contains(QString::fromStdString(name)));
    EXPECT_EQ(session().exit_status(), 1);
    EXPECT_EQ(ends, 1);
}

TEST_F(Window, AClickOnARowIsToldOnce) {
    click(form().Bouton_Internet);
    auto& view = dynamic_cast<QListView&>(widget(form().List_Internet));
    int told = 0;
    form().List_Internet.on_click = [&] { ++told; };
    auto const click_on = [&](int row) {
        auto const place = view.visualRect(view.model()->index(row, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    };
    click_on(2);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(form().List_Internet.ListIndex, 2);
    click_on(2);
    EXPECT_EQ(told, 2) << "the chosen row answers too";
    view.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(told, 3);
    click_on(3);
    EXPECT_EQ(told, 4) << "chosen by a key before";
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(view.model()->index(1, 0)).center());
    EXPECT_EQ(told, 5) << "told by the press already";
    EXPECT_EQ(form().List_Internet.ListIndex, 1);
}

// Whoever sees nothing happen starts the program once more; it says so and goes, and what the
// first one has handed to a reader of texts stays.
TEST_F(Window, ASecondStartLeavesTheTextsOfTheFirst) {
    QTextBrowser reader;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &reader, "setSource");
    auto const folder = session().program().application_folder;
    auto const text = folder / "Marie Dupont.txt";
    write_file(text, "MARIE DUPONT\r\n", "Marie Dupont.txt");
    session().view_text(text, "Marie Dupont");
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QString const copy = reader.source().toLocalFile();
    ASSERT_TRUE(copy.endsWith(QStringLiteral("/1/Marie Dupont.txt"))) << copy.toStdString();
    {
        desktop::Session second{folder, [] {}};
        answer_next_box("OK");
        second.start();
        EXPECT_EQ(second.exit_status(), 0);
    }
    EXPECT_TRUE(QFile::exists(copy));
}

}  // namespace

}  // namespace navarun::test
