// Roles and names.
#include "desktop/spoken.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

namespace navarun::desktop {

namespace {

constexpr char const* role_property = "navarun_spoken_role";
constexpr char const* reaction_property = "navarun_reaction";

Reaction reaction_of(QWidget const& widget) {
    return static_cast<Reaction>(widget.property(reaction_property).toInt());
}

QAccessible::Role role_of(QWidget const& widget) {
    bool const reacts = reaction_of(widget) != Reaction::none;
    switch (static_cast<SpokenRole>(widget.property(role_property).toInt())) {
        case SpokenRole::decoration:
            return QAccessible::Whitespace;
        case SpokenRole::text:
            return reacts ? QAccessible::Button : QAccessible::StaticText;
        case SpokenRole::picture:
            // Nothing lies in a button, but in a picture other controls may lie.
            return QAccessible::Graphic;
        case SpokenRole::icon:
            return reacts ? QAccessible::Button : QAccessible::Graphic;
        case SpokenRole::group:
            return QAccessible::Grouping;
    }
    return QAccessible::Client;
}

// A widget that draws itself: pressing it from a screen reader is Enter on it, and Shift+Enter
// where it answers to a double click alone.
class DrawnWidget : public QAccessibleWidget {
  public:
    explicit DrawnWidget(QWidget* widget)
        : QAccessibleWidget{widget, role_of(*widget)}, m_reaction{reaction_of(*widget)} {}

    QStringList actionNames() const override {
        if (m_reaction == Reaction::none) return {};
        return {pressAction(), setFocusAction()};
    }

    void doAction(QString const& name) override {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        bool const twice = m_reaction == Reaction::double_click;
        QKeyEvent enter{QEvent::KeyPress, Qt::Key_Return,
                        twice ? Qt::ShiftModifier : Qt::NoModifier};
        QApplication::sendEvent(widget(), &enter);
    }

  private:
    Reaction m_reaction;
};

// A combo by its own name; the toolkit's calls it by what stands in it.
class NamedCombo : public QAccessibleWidget {
  public:
    explicit NamedCombo(QComboBox* combo)
        : QAccessibleWidget{combo, QAccessible::ComboBox}, m_combo{*combo} {}

    QString text(QAccessible::Text what) const override {
        bool const written = m_combo.isEditable();
        if (what == QAccessible::Value) return m_combo.currentText();
        QString own = QAccessibleWidget::text(what);
        if (what != QAccessible::Name || written || m_combo.currentText().isEmpty()) return own;
        // Nothing inside tells what is chosen.
        return own + QStringLiteral(": ") + m_combo.currentText();
    }

    int childCount() const override { return m_combo.isEditable() ? 2 : 1; }

    QAccessibleInterface* child(int index) const override {
        if (index == 0) return QAccessible::queryAccessibleInterface(m_combo.view());
        return index == 1 ? QAccessible::queryAccessibleInterface(m_combo.lineEdit()) : nullptr;
    }

    int indexOfChild(QAccessibleInterface const* inner) const override {
        if (inner == nullptr) return -1;
        if (inner->object() == m_combo.view()) return 0;
        return m_combo.isEditable() && inner->object() == m_combo.lineEdit() ? 1 : -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        auto* const line = m_combo.lineEdit();
        bool const in_line =
            line != nullptr && line->rect().contains(line->mapFromGlobal(QPoint{x, y}));
        return in_line ? child(1) : nullptr;
    }

    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }

    void doAction(QString const& name) override {
        if (name == showMenuAction()) {
            m_combo.showPopup();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    QComboBox& m_combo;
};

// Asked for each object and each class that it is of; what is not ours is the toolkit's.
QAccessibleInterface* own_interface(QString const&, QObject* object) {
    if (auto* const combo = qobject_cast<QComboBox*>(object)) return new NamedCombo{combo};
    if (object == nullptr || !object->isWidgetType()) return nullptr;
    if (!object->property(role_property).isValid()) return nullptr;
    return new DrawnWidget{static_cast<QWidget*>(object)};
}

}  // namespace

void install_roles() { QAccessible::installFactory(own_interface); }

void present(QWidget& widget, SpokenRole role, Reaction reaction) {
    widget.setProperty(role_property, static_cast<int>(role));
    widget.setProperty(reaction_property, static_cast<int>(reaction));
}

void show_name(QWidget& widget, QString const& name) {
    if (widget.accessibleName() == name) return;
    widget.setAccessibleName(name);
    if (auto* const combo = qobject_cast<QComboBox*>(&widget)) {
        if (combo->lineEdit() != nullptr) combo->lineEdit()->setAccessibleName(name);
        show_name(*combo->view(), name);
    }
    if (auto* const area = qobject_cast<QAbstractScrollArea*>(&widget)) {
        QString const bar = name + QStringLiteral(", défilement");
        area->verticalScrollBar()->setAccessibleName(bar);
        area->horizontalScrollBar()->setAccessibleName(bar);
    }
}

}  // namespace navarun::desktop
