// What all widgets of the window share: place, visibility, tool tip, pointer.
#pragma once

#include <QApplication>

#include "desktop/control_view.h"
#include "desktop/gestures.h"
#include "desktop/session.h"
#include "desktop/spoken.h"
#include "desktop/to_qt.h"

namespace navarun::desktop {

/// A view with a widget of type W for a control of type C. The widget belongs to its parent.
template <typename C, typename W>
class PlacedView : public ControlView {
  public:
    PlacedView(Session& session, C& control, W* widget)
        : m_session{session}, m_control{control}, m_widget{widget} {}

    QWidget* widget() const override { return m_widget; }

    void refresh() override {
        if (!m_control.Visible || !m_control.Enabled) let_go_of_keyboard();
        m_widget->setEnabled(m_control.Enabled);
        m_widget->setToolTip(plain_tooltip(m_control.ToolTipText.get()));
        show_name(*m_widget, to_qt(m_control.SpokenName.get()));
        show_pointer();
        show_content();
        m_widget->setGeometry(place());
        // Last, so that nothing half made is seen.
        m_widget->setVisible(m_control.Visible);
    }

  protected:
    virtual void show_content() = 0;
    /// Asked once the content is shown: what is drawn may need more than its box.
    virtual QRect place() const { return to_rect(m_control); }

    Session& session() const { return m_session; }
    C& control() const { return m_control; }
    W& shown() const { return *m_widget; }

  private:
    // The toolkit would hand the keyboard of what is hidden or disabled to a neighbour, as if
    // the user had moved it there.
    void let_go_of_keyboard() {
        auto* const keyboard = QApplication::focusWidget();
        if (keyboard == nullptr) return;
        if (keyboard == m_widget || m_widget->isAncestorOf(keyboard)) {
            m_widget->window()->setFocus(Qt::OtherFocusReason);
        }
    }

    void show_pointer() {
        auto const& icon = m_control.MouseIcon.get().name();
        if (icon == m_pointer) return;
        m_pointer = icon;
        if (icon.empty()) {
            m_widget->unsetCursor();
        } else {
            m_widget->setCursor(
                m_session.pictures().hand_cursor(icon, m_widget->devicePixelRatioF()));
        }
    }

    Session& m_session;
    C& m_control;
    W* m_widget;
    std::string m_pointer;
};

/// Sets a colour of a widget's palette where it differs.
inline void set_colour(QWidget& widget, QPalette::ColorRole role, QColor const& colour) {
    QPalette palette = widget.palette();
    if (palette.color(QPalette::Active, role) == colour) return;
    for (auto const group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, role, colour);
    }
    widget.setPalette(palette);
}

}  // namespace navarun::desktop
