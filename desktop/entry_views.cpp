// Text fields, text areas and the date fields.
#include "desktop/entry_views.h"

#include <QAbstractItemView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace navarun::desktop {

namespace {

int in_characters(QString const& text, qsizetype utf16_units) {
    return static_cast<int>(text.left(utf16_units).toUcs4().size());
}

int in_utf16(QString const& text, int characters) {
    auto const ucs4 = text.toUcs4();
    auto const count = std::min<qsizetype>(characters, ucs4.size());
    return static_cast<int>(
        QString::fromUcs4(reinterpret_cast<char32_t const*>(ucs4.constData()), count).size());
}

struct Entered {
    std::string text;
    int caret;  // in characters
};

// What stands in a field after an entry. What is copied from elsewhere may bring its accents as
// characters of their own; here a letter is one.
Entered entered(QString const& text, int caret) {
    auto const composed = [](QString const& some) {
        return some.normalized(QString::NormalizationForm_C);
    };
    QString const before = composed(text.left(caret));
    return {from_qt(composed(text)), in_characters(before, before.size())};
}

// The text of a note with all its blanks: the toolkit's plain text turns those that do not
// break into common ones.
QString text_of(QPlainTextEdit const& edit) {
    return edit.document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
        .replace(QChar::LineSeparator, QLatin1Char('\n'));
}

Entered entered(QPlainTextEdit const& edit) {
    return entered(text_of(edit), edit.textCursor().position());
}

void set_fields_colours(QWidget& widget, screen::TextControl const& control) {
    set_colour(widget, QPalette::Base, to_qt(control.BackColor.get()));
    set_colour(widget, QPalette::Text, to_qt(control.ForeColor.get()));
}

// Lets the model's KeyPress see each character before the field takes it.
class KeyPressFilter : public QObject {
  public:
    KeyPressFilter(Session& session, screen::EntryControl& control, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_control{control} {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !m_control.on_key_press) return false;
        auto const& pressed = *static_cast<QKeyEvent*>(event);
        // Who only passes through the field writes nothing.
        if (pressed.key() == Qt::Key_Tab || pressed.key() == Qt::Key_Backtab) return false;
        auto const text = pressed.text().toUcs4();
        bool swallowed = false;
        for (auto const character : text) {
            m_session.act([&](screen::User& user) {
                swallowed =
                    user.press(m_control, static_cast<char32_t>(character)) || swallowed;
            });
        }
        return swallowed;
    }

  private:
    Session& m_session;
    screen::EntryControl& m_control;
};

// A date field whose list is as wide as its entries, though the field is not. To measure them
// all can wait until it is first opened.
class DateBox : public QComboBox {
  public:
    using QComboBox::QComboBox;

    void showPopup() override {
        view()->setMinimumWidth(view()->sizeHintForColumn(0) + 32);
        QComboBox::showPopup();
    }
};

// A date field takes digits, one at a time, and nothing else: the model edits, the widget
// shows.
class DateKeys : public QObject {
  public:
    DateKeys(Session& session, screen::Combo& combo, QComboBox& box)
        : QObject{&box}, m_session{session}, m_combo{combo}, m_box{box} {
        box.installEventFilter(this);
        box.lineEdit()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::KeyPress:
                return press(*static_cast<QKeyEvent*>(event));
            case QEvent::InputMethod:
                type(static_cast<QInputMethodEvent*>(event)->commitString());
                return true;
            case QEvent::Wheel:
            case QEvent::ContextMenu:
            case QEvent::DragEnter:
            case QEvent::Drop:
                return true;
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
                // The middle button would paste what is marked elsewhere.
                if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return true;
                // A click offers the whole text to the next digit.
                if (watched == m_box.lineEdit() &&
                    event->type() == QEvent::MouseButtonRelease) {
                    m_session.act([&](screen::User& user) { user.click(m_combo); });
                }
                return false;
            default:
                return false;
        }
    }

  private:
    // Answers whether the widget never sees the key.
    bool press(QKeyEvent const& event) {
        switch (event.key()) {
            case Qt::Key_Up:
                choose_neighbour(-1);
                return true;
            case Qt::Key_Down:
                if (event.modifiers().testFlag(Qt::AltModifier))
                    return false;  // opens the list
                choose_neighbour(+1);
                return true;
            case Qt::Key_F4:
            case Qt::Key_Tab:
            case Qt::Key_Backtab:
            case Qt::Key_Left:
            case Qt::Key_Right:
            case Qt::Key_Home:
            case Qt::Key_End:
                return false;
            default:
                break;
        }
        // A shortcut of the menu bar passes; whatever would edit the text does not.
        if (event.text().isEmpty()) return false;
        type(event.text());
        return true;
    }

    void type(QString const& text) {
        auto const* const line = m_box.lineEdit();
        QString const whole = line->text();
        bool const selected = line->hasSelectedText();
        auto const start = selected ? line->selectionStart() : line->cursorPosition();
        m_combo.select({in_characters(whole, start),
                        selected ? static_cast<int>(line->selectedText().size()) : 0});
        for (auto const character : text.toUcs4()) {
            m_session.act(
                [&](screen::User& user) { user.type(static_cast<char32_t>(character)); });
        }
    }

    void choose_neighbour(int step) {
        int const entry = m_combo.list_index() + step;
        if (entry < 0 || entry >= static_cast<int>(m_combo.entries().size())) return;
        m_session.act([&](screen::User& user) { user.choose(m_combo, entry); });
    }

    Session& m_session;
    screen::Combo& m_combo;
    QComboBox& m_box;
};

}  // namespace

TextFieldView::TextFieldView(Session& session, screen::TextField& field, QWidget& parent)
    : PlacedView{session, field, new QLineEdit{&parent}} {
    new KeyPressFilter{session, field, shown()};
    tell_focus(session, field, shown());
    QObject::connect(&shown(), &QLineEdit::textEdited, &shown(), [this](QString const& text) {
        auto const now = entered(text, shown().cursorPosition());
        this->session().act(
            [&](screen::User& user) { user.edit(this->control(), now.text, now.caret); });
    });
}

void TextFieldView::show_content() {
    auto& line = shown();
    auto& field = control();
    line.setFont(font_of(field));
    set_fields_colours(line, field);
    QString const text = to_qt(field.Text.get());
    // The limit holds for what is typed; the program may put in more.
    int const limit = field.max_length() > 0 ? field.max_length() : 32767;
    line.setMaxLength(std::max(limit, static_cast<int>(text.size())));
    bool const chosen_by_model = session().program().screen.focus() == &field;
    if (line.text() != text) line.setText(text);
    auto const selection = field.selection();
    if (!chosen_by_model) {
        line.deselect();
    } else if (selection.length > 0) {
        line.setSelection(in_utf16(text, selection.start), in_utf16(text, selection.length));
    } else if (!line.hasSelectedText() || line.hasFocus()) {
        line.setCursorPosition(in_utf16(text, selection.start));
    }
}

TextAreaView::TextAreaView(Session& session, screen::TextArea& area, QWidget& parent)
    : PlacedView{session, area, new QPlainTextEdit{&parent}} {
    auto& edit = shown();
    edit.setReadOnly(area.read_only());
    // What is only read can be selected, copied and scrolled with the keys too.
    if (area.read_only()) {
        edit.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    edit.setTabChangesFocus(true);
    edit.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    edit.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit.document()->setDocumentMargin(2);
    edit.setFrameShape(QFrame::StyledPanel);
    new KeyPressFilter{session, area, edit};
    tell_focus(session, area, edit);
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit, [this] {
        if (this->control().read_only()) return;
        auto const now = entered(shown());
        this->session().act(
            [&](screen::User& user) { user.edit(this->control(), now.text, now.caret); });
    });
}

void TextAreaView::show_content() {
    auto& edit = shown();
    edit.setFont(font_of(control()));
    set_fields_colours(edit, control());
    QString const text = to_qt(control().Text.get());
    if (text_of(edit) == text) return;
    QSignalBlocker const silent{edit};
    int const caret = entered(edit).caret;
    edit.setPlainText(text);
    if (!edit.hasFocus()) return;
    // A letter replaced by its nearest must not send the next one to the front.
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(in_utf16(text, caret));
    edit.setTextCursor(cursor);
}

ComboView::ComboView(Session& session, screen::Combo& combo, QWidget& parent)
    : PlacedView{session, combo, new DateBox{&parent}} {
    auto& box = shown();
    box.setEditable(true);
    box.setCompleter(nullptr);
    box.setInsertPolicy(QComboBox::NoInsert);
    box.setContextMenuPolicy(Qt::NoContextMenu);
    box.setMaxVisibleItems(16);
    box.lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
    box.lineEdit()->setAcceptDrops(false);
    box.lineEdit()->setDragEnabled(false);
    for (auto const& entry : combo.entries()) box.addItem(to_qt(entry));
    new DateKeys{session, combo, box};
    tell_focus(session, combo, box);
    QObject::connect(&box, &QComboBox::activated, &box, [this](int entry) {
        this->session().act([&](screen::User& user) { user.choose(this->control(), entry); });
    });
}

void ComboView::show_content() {
    auto& box = shown();
    auto& line = *box.lineEdit();
    box.setFont(font_of(control()));
    set_fields_colours(box, control());
    QString const text = to_qt(control().Text.get());
    QSignalBlocker const silent{box};
    int const entry = control().list_index();
    if (box.currentIndex() != entry) box.setCurrentIndex(entry);
    if (line.text() != text) line.setText(text);
    auto const selection = control().selection();
    if (session().program().screen.focus() != &control()) {
        line.deselect();
    } else if (selection.length > 0) {
        line.setSelection(selection.start, selection.length);
    } else {
        line.setCursorPosition(selection.start);
    }
}

}  // namespace navarun::desktop
