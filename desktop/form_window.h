// Shows any window of the screen model: from kind, place and properties it makes the widgets
// and keeps them up to date.
#pragma once

#include <QMainWindow>
#include <map>
#include <memory>

#include "desktop/control_view.h"
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

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void make_views();
    void make_menus();
    void make_timers();
    void chain_tab_order();
    void show_form();
    bool is_main() const;

    Session& m_session;
    screen::Form& m_form;
    QWidget* m_canvas;
    std::map<screen::Control const*, std::unique_ptr<ControlView>> m_views;
};

}  // namespace navarun::desktop
