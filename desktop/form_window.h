// Shows any window of the screen model: from kind, place and properties it makes the widgets
// and keeps them up to date.
#pragma once

#include <QMainWindow>
#include <QScrollArea>
#include <map>
#include <memory>
#include <set>

#include "desktop/control_view.h"
#include "desktop/focus_ring.h"
#include "desktop/menus.h"
#include "desktop/tab_walk.h"
#include "shell/screen/screen.h"

namespace navarun::desktop {

class Session;

class FormWindow : public QMainWindow {
  public:
    /// Makes the widgets; the window shows with the first show_control() of its form.
    FormWindow(Session& session, screen::Form& form);
    ~FormWindow() override;

    screen::Form& form() const { return m_form; }
    /// Brings the widget of a control up to date, or the window itself where it is the form.
    void show_control(screen::Control const& control);
    /// Gives the keyboard to the widget of the control that has the focus.
    void show_focus(screen::Control const& control);
    /// The control that `widget` shows; null where it shows none.
    screen::Control* control_of(QWidget const& widget) const;
    /// The widget of a control; null for a menu entry.
    QWidget* widget(screen::Control const& control) const;
    /// Gives the keyboard back to the control that has the focus.
    /// @return whether it stands in this window.
    bool give_keyboard_back();
    /// Shows where on the picture that has the keyboard its keys would press.
    void show_point(QPointF point) { m_ring->show_point(point); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void make_views();
    /// Fills what has been hidden since the window was made and no longer is.
    void fill_what_came_up();
    void make_timers();
    void make_shortcuts();
    void make_tab_order();
    void keyboard_moved(QWidget* to);
    void walk_to(QWidget& stop, Qt::FocusReason reason);
    void show_form();
    void show_stacking();
    /// As large as the form where the screen has the room; elsewhere it scrolls.
    void fit_to_screen();
    void fit_with_frame();
    bool is_main() const;
    FormWindow& main_window() const;
    /// What the screen of the main window leaves to the program; in its pixels.
    QRect room_on_screen() const;

    Session& m_session;
    screen::Form& m_form;
    QWidget* m_canvas;
    screen::Stacking m_stacking = screen::Stacking::normal;
    QScrollArea* m_area;
    FocusRing* m_ring;
    std::map<screen::Control const*, std::unique_ptr<ControlView>> m_views;
    std::set<screen::Control const*> m_unseen;  // not yet filled, as nobody could see it
    Menus m_menus;
    TabWalk m_walk;
    // Which control had the focus when the keyboard came to a stop of the desktop's own.
    screen::Control const* m_focus_at_stop = nullptr;
    bool m_fits_with_frame = false;
};

}  // namespace navarun::desktop
