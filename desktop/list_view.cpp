// Showing lists.
#include "desktop/list_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/copy_menu.h"

namespace navarun::desktop {

namespace {

// The key codes by which the logic knows the keys that lists answer to.
int code_of(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return key::enter;
        case Qt::Key_Delete:
            return key::erase;
        case Qt::Key_Control:
            return key::control;
        default:
            return 0;
    }
}

class ListKeys : public QObject {
  public:
    ListKeys(Session& session, screen::List& list, QWidget& widget)
        : QObject{&widget}, m_session{session}, m_list{list} {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        auto const& pressed = *static_cast<QKeyEvent*>(event);
        if (m_list.ListIndex < 0 && m_list.count() > 0) {
            // With nothing selected the way begins at an end; the toolkit would pass it by.
            bool const down = pressed.key() == Qt::Key_Down || pressed.key() == Qt::Key_Home;
            bool const up = pressed.key() == Qt::Key_Up || pressed.key() == Qt::Key_End;
            if (down || up) {
                m_session.act([&](screen::User& user) {
                    user.choose(m_list, down ? 0 : m_list.count() - 1);
                });
                return true;
            }
        }
        int const code = code_of(pressed.key());
        if (code == 0 || pressed.isAutoRepeat()) return false;
        // Where the list answers to no key, Enter is the double click.
        bool const opens = code == key::enter && !m_list.on_key_press && !m_list.on_key_down;
        m_session.act([&](screen::User& user) {
            if (opens) {
                user.double_click(m_list);
            } else {
                user.key(m_list, code);
            }
        });
        return true;
    }

  private:
    Session& m_session;
    screen::List& m_list;
};

// A row is chosen at the press of the button or by a key; a click on the row that is chosen
// already is told at its end. Each is told once.
class RowChoices : public QObject {
  public:
    RowChoices(Session& session, screen::List& list, QListView& view)
        : QObject{&view}, m_session{session}, m_list{list} {
        view.viewport()->installEventFilter(this);
        QObject::connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
                         [this](QItemSelection const& selected) {
                             if (selected.isEmpty()) return;
                             int const row = selected.indexes().front().row();
                             if (row == m_list.ListIndex) return;
                             m_told_by_press = true;
                             choose(row);
                         });
        QObject::connect(&view, &QListView::clicked, this, [this](QModelIndex const& at) {
            if (!std::exchange(m_told_by_press, false)) choose(at.row());
        });
    }

    bool eventFilter(QObject*, QEvent* event) override {
        // What a key has chosen since is no part of the click that begins here.
        if (event->type() == QEvent::MouseButtonPress) m_told_by_press = false;
        return false;
    }

  private:
    void choose(int row) {
        m_session.act([&](screen::User& user) { user.choose(m_list, row); });
    }

    Session& m_session;
    screen::List& m_list;
    bool m_told_by_press = false;
};

// The right button offers texts for copying and does nothing else: a choice may load, move or
// delete, and a field that loses the keyboard may be repaired.
class ListMenu : public QObject {
  public:
    ListMenu(screen::List& list, QListView& view)
        : QObject{&view}, m_list{list}, m_view{view}, m_bar{view.verticalScrollBar()} {
        // Else any button would bring the keyboard.
        view.setFocusPolicy(Qt::TabFocus);
        view.installEventFilter(this);
        view.viewport()->installEventFilter(this);
        m_bar->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // Events come until the view is gone, so the bar is not asked of it here.
        bool const on_bar = watched == m_bar;
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
                if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
                    return !on_bar;
                if (event->type() == QEvent::MouseButtonPress)
                    m_view.setFocus(Qt::MouseFocusReason);
                return false;
            case QEvent::ContextMenu:
                if (on_bar) return false;
                offer(*static_cast<QContextMenuEvent*>(event));
                return true;
            default:
                return false;
        }
    }

  private:
    void offer(QContextMenuEvent const& asked) {
        bool const keyboard = asked.reason() == QContextMenuEvent::Keyboard;
        QPoint const where = m_view.viewport()->mapFromGlobal(asked.globalPos());
        int const row = keyboard ? m_list.ListIndex : m_view.indexAt(where).row();
        auto const place = m_view.visualRect(m_view.model()->index(std::max(row, 0), 0));
        offer_copies(m_view, asked, place.center(),
                     {{QStringLiteral("Co&pier la ligne"), row >= 0,
                       [this, row] { return entry(row).trimmed(); }},
                      {QStringLiteral("&Tout copier"), m_list.count() > 0,
                       [this] { return all_entries(); }}});
    }

    QString entry(int row) const {
        return row < m_list.count() ? to_qt(m_list.entries()[static_cast<std::size_t>(row)])
                                    : QString{};
    }

    QString all_entries() const {
        QString all;
        for (auto const& line : m_list.entries()) all.append(to_qt(line)).append(u'\n');
        return all;
    }

    screen::List& m_list;
    QListView& m_view;
    QObject* m_bar;
};

}  // namespace

void EntriesModel::follow() {
    // A hidden list is not read: it will be when it is shown.
    if (!m_list.is_shown() || m_version == m_list.version()) return;
    beginResetModel();
    m_version = m_list.version();
    m_count = m_list.count();
    endResetModel();
}

int EntriesModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : m_count;
}

QVariant EntriesModel::data(QModelIndex const& index, int role) const {
    bool const spoken = role == Qt::AccessibleTextRole;
    if ((role != Qt::DisplayRole && !spoken) || index.row() >= m_list.count()) return {};
    QString const entry = to_qt(m_list.entries()[static_cast<std::size_t>(index.row())]);
    return spoken && entry.trimmed().isEmpty() ? QStringLiteral("(ligne vide)") : entry;
}

ListView::ListView(Session& session, screen::List& list, QWidget& parent)
    : PlacedView{session, list, new QListView{&parent}}, m_model{list} {
    auto& view = shown();
    view.setModel(&m_model);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setUniformItemSizes(true);
    view.setTextElideMode(Qt::ElideRight);
    new ListKeys{session, list, view};
    new ListMenu{list, view};
    tell_focus(session, list, view);
    tell_pointer(session, list, *view.viewport());
    new RowChoices{session, list, view};
    QObject::connect(&view, &QListView::doubleClicked, &view, [this] {
        this->session().act([this](screen::User& user) { user.double_click(this->control()); });
    });
}

void ListView::show_content() {
    auto& view = shown();
    // Of a list the toolkit tells screen readers no tool tip by itself.
    view.setAccessibleDescription(view.toolTip());
    view.setFont(font_of(control()));
    set_colour(view, QPalette::Base, to_qt(control().BackColor.get()));
    set_colour(view, QPalette::Text, to_qt(control().ForeColor.get()));
    m_model.follow();
    auto& selection = *view.selectionModel();
    QSignalBlocker const silent{selection};
    int const row = control().ListIndex;
    if (row < 0) {
        selection.clear();
        view.viewport()->update();
    } else if (view.currentIndex().row() != row || !selection.hasSelection()) {
        auto const index = m_model.index(row);
        selection.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        view.scrollTo(index);
        view.viewport()->update();
    }
}

}  // namespace navarun::desktop
