// How the kinds of controls look and answer on the desktop.
#pragma once

#include <QAction>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "shell/screen/control.h"

namespace navarun::desktop {

class Session;

/// The widget of one control.
class ControlView {
  public:
    ControlView() = default;
    virtual ~ControlView() = default;
    ControlView(ControlView const&) = delete;
    ControlView& operator=(ControlView const&) = delete;

    /// Shows the control's present properties.
    virtual void refresh() = 0;
    /// Null for a menu entry.
    virtual QWidget* widget() const { return nullptr; }
    /// Where the keyboard goes when the control has the focus.
    virtual QWidget* focus_widget() const { return widget(); }
};

/// The view that suits the control's kind.
std::unique_ptr<ControlView> make_view(Session& session, screen::PlacedControl& control,
                                       QWidget& parent);

class MenuEntryView : public ControlView {
  public:
    MenuEntryView(Session& session, screen::MenuEntry& entry, QAction& action);
    void refresh() override;

  private:
    screen::MenuEntry& m_entry;
    QAction& m_action;
};

}  // namespace navarun::desktop
