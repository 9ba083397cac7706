// The way of the keyboard through a window: Tab from stop to stop, and with the arrows through
// the many like members of an array, which are one stop together.
#pragma once

#include <QWidget>
#include <map>
#include <string_view>
#include <vector>

#include "shell/screen/control.h"

namespace navarun::desktop {

/// Whether the desktop gives the keyboard to a control that the model gives no focus: a label
/// or a picture that answers to the pointer, or that stands in the window's order of the tab.
bool is_stop_of_the_desktop(screen::Control const& control);

class TabWalk {
  public:
    struct Stop {
        screen::Control* control;
        QWidget* widget;
    };
    enum class Direction { left, right, up, down, first, last };

    /// In the order of the tab.
    void add(Stop stop) { m_stops.push_back(stop); }
    /// The control of a stop; null for any other widget.
    screen::Control* control_of(QWidget const* widget) const;
    /// Whether the arrows lead from there to other members of an array.
    bool is_walked(QWidget const& widget) const;

    /// Where Tab (or Shift+Tab) leads from `from`, null for nowhere; null at `from` begins at
    /// an end. A walked array is entered at the member of the same index as the one left, so
    /// that the keyboard stays in its cell, else at the member that had it last.
    QWidget* after(QWidget const* from, bool forward) const;
    /// The next member of a walked array in a direction; null where there is none.
    QWidget* neighbour(QWidget const& from, Direction direction) const;
    /// Remembers where an array was left.
    void visited(QWidget const& widget);

  private:
    std::vector<Stop>::const_iterator find(QWidget const* widget) const;
    bool walks(Stop const& stop) const;
    bool same_array(Stop const& a, Stop const& b) const;
    Stop const& entry_of(Stop const& member, Stop const* left) const;

    std::vector<Stop> m_stops;
    std::map<std::string_view, int> m_visited;  // index by the name of the array
};

}  // namespace navarun::desktop
