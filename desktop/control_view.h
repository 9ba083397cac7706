// How the kinds of controls look and answer on the desktop.
#pragma once

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
    virtual QWidget* widget() const = 0;
    /// Where the keyboard goes when the control has the focus.
    virtual QWidget* focus_widget() const { return widget(); }
};

/// The view that suits the control's kind.
std::unique_ptr<ControlView> make_view(Session& session, screen::PlacedControl& control,
                                       QWidget& parent);

}  // namespace navarun::desktop
