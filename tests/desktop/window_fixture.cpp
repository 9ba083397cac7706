// Events of the toolkit for the tests.
#include "tests/desktop/window_fixture.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/to_qt.h"

namespace navarun::test {

Window::Window() : m_session{m_folder.path(), [this] { ++ends; }} {
    m_session.start();
    window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
}

QWidget& Window::widget(screen::Control const& control) { return *window().widget(control); }

void Window::click(screen::Control const& control) {
    QWidget* target = &widget(control);
    if (auto* const combo = qobject_cast<QComboBox*>(target)) target = combo->lineEdit();
    QTest::mouseClick(target, Qt::LeftButton);
}

void Window::double_click(screen::Control const& control) {
    QTest::mouseClick(&widget(control), Qt::LeftButton);
    QTest::mouseDClick(&widget(control), Qt::LeftButton);
}

void Window::type(std::string const& text) {
    for (QChar const character : desktop::to_qt(text)) {
        // The keyboard may have moved with the character before.
        QWidget* const keyboard = QApplication::focusWidget();
        if (character.unicode() < 128) {
            QTest::keyClick(keyboard, character.toLatin1());
        } else {
            QTest::sendKeyEvent(QTest::Click, keyboard, Qt::Key_unknown, character,
                                Qt::NoModifier);
        }
    }
}

void Window::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Window::choose_menu(screen::MenuEntry const& entry) {
    auto* const action = window().findChild<QAction*>(desktop::to_qt(entry.name()));
    ASSERT_NE(action, nullptr) << entry.name();
    action->trigger();
}

void Window::answer_next_box(QString const& button) {
    QTimer::singleShot(0, &window(), [this, button] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr) << "no box was shown";
        last_box_title = box->windowTitle();
        last_box_text = box->text();
        last_box_buttons.clear();
        QAbstractButton* wanted = nullptr;
        for (auto* const offered : box->buttons()) {
            QString const name = offered->text().remove(QLatin1Char('&'));
            last_box_buttons.append(name);
            if (name == button) wanted = offered;
        }
        ASSERT_NE(wanted, nullptr) << last_box_buttons.join(QLatin1Char(',')).toStdString();
        wanted->click();
    });
}

}  // namespace navarun::test
