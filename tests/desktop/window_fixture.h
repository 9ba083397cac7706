// The real window, typed into and clicked with the toolkit's own events.
#pragma once

#include <QTest>
#include <string>

#include <gtest/gtest.h>

#include "desktop/form_window.h"
#include "desktop/session.h"
#include "tests/support/visit.h"

namespace navarun::test {

class Window : public testing::Test {
  protected:
    Window();

    Form1& form() { return m_session.program().form1; }
    desktop::Session& session() { return m_session; }
    desktop::FormWindow& window() { return *m_session.window(form()); }
    QWidget& widget(screen::Control const& control);

    void click(screen::Control const& control);
    void double_click(screen::Control const& control);
    /// Types into whatever has the keyboard.
    void type(std::string const& text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Chooses an entry of the menu bar.
    void choose_menu(screen::MenuEntry const& entry);
    /// Answers the next message box by the button that is named, and remembers its texts.
    void answer_next_box(QString const& button);
    QString last_box_title;
    QString last_box_text;
    QStringList last_box_buttons;
    int ends = 0;  // how often the session has told that the run is over

  private:
    TemporaryFolder m_folder;
    desktop::Session m_session;
};

}  // namespace navarun::test
