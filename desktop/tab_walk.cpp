// Stops, arrays and neighbours.
#include "desktop/tab_walk.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "shell/screen/form.h"

namespace navarun::desktop {

namespace {

// The members of smaller arrays are stops of their own.
constexpr int walked_from = 5;

// Also before its window is shown: there the keyboard has to begin somewhere.
bool usable(TabWalk::Stop const& stop) {
    return stop.widget->isVisibleTo(stop.widget->window()) && stop.widget->isEnabled();
}

QPoint centre_of(TabWalk::Stop const& stop) {
    return stop.widget->mapTo(stop.widget->window(), stop.widget->rect().center());
}

// How far `to` is from `from` in a direction; nothing where it does not lie there.
std::optional<double> distance(QPoint from, QPoint to, TabWalk::Direction direction) {
    using enum TabWalk::Direction;
    QPoint const way = to - from;
    bool const across = direction == left || direction == right;
    int const along = across ? way.x() : way.y();
    int const aside = std::abs(across ? way.y() : way.x());
    bool const backward = direction == left || direction == up;
    int const ahead = backward ? -along : along;
    // Labels that grow with their texts stand a little out of their line.
    if (ahead <= 0 || aside > 2 * ahead) return {};
    return ahead + 4.0 * aside;
}

}  // namespace

bool is_stop_of_the_desktop(screen::Control const& control) {
    switch (control.kind()) {
        case screen::Kind::label:
        case screen::Kind::image:
        case screen::Kind::picture_box:
            break;
        default:
            return false;
    }
    return control.on_click || control.on_double_click || control.on_mouse_down ||
           std::ranges::count(control.form().tab_order, &control) > 0;
}

std::vector<TabWalk::Stop>::const_iterator TabWalk::find(QWidget const* widget) const {
    return std::ranges::find(m_stops, widget, &Stop::widget);
}

screen::Control* TabWalk::control_of(QWidget const* widget) const {
    auto const here = find(widget);
    return here == m_stops.end() ? nullptr : here->control;
}

bool TabWalk::is_walked(QWidget const& widget) const {
    auto const here = find(&widget);
    return here != m_stops.end() && walks(*here);
}

bool TabWalk::same_array(Stop const& a, Stop const& b) const {
    return a.control->index() && b.control->index() && a.control->name() == b.control->name();
}

bool TabWalk::walks(Stop const& stop) const {
    return std::ranges::count_if(m_stops, [&](Stop const& other) {
               return same_array(stop, other);
           }) >= walked_from;
}

TabWalk::Stop const& TabWalk::entry_of(Stop const& member, Stop const* left) const {
    auto const visited_before = m_visited.find(member.control->name());
    auto const member_of = [&](std::optional<int> index) {
        return std::ranges::find_if(m_stops, [&](Stop const& stop) {
            return index && same_array(stop, member) && stop.control->index() == index &&
                   usable(stop);
        });
    };
    if (left != nullptr && left->control->container() == member.control->container()) {
        auto const same = member_of(left->control->index());
        if (same != m_stops.end()) return *same;
    }
    if (visited_before != m_visited.end()) {
        auto const last = member_of(visited_before->second);
        if (last != m_stops.end()) return *last;
    }
    auto const first = std::ranges::find_if(
        m_stops, [&](Stop const& stop) { return same_array(stop, member) && usable(stop); });
    return *first;
}

QWidget* TabWalk::after(QWidget const* from, bool forward) const {
    auto const count = static_cast<int>(m_stops.size());
    auto const begun = find(from);
    Stop const* const left = begun == m_stops.end() ? nullptr : &*begun;
    int place =
        left == nullptr ? (forward ? -1 : count) : static_cast<int>(begun - m_stops.begin());
    for (int tried = 0; tried < count; ++tried) {
        place = (place + (forward ? 1 : -1) + count) % count;
        auto const& stop = m_stops[static_cast<std::size_t>(place)];
        if (!usable(stop)) continue;
        if (!stop.control->index() || !walks(stop)) return stop.widget;
        if (left != nullptr && same_array(stop, *left)) continue;
        return entry_of(stop, left).widget;
    }
    return nullptr;
}

QWidget* TabWalk::neighbour(QWidget const& from, Direction direction) const {
    auto const here = find(&from);
    if (here == m_stops.end() || !here->control->index() || !walks(*here)) return nullptr;
    QWidget* nearest = nullptr;
    double least = std::numeric_limits<double>::max();
    for (auto const& stop : m_stops) {
        if (!same_array(stop, *here) || !usable(stop)) continue;
        if (direction == Direction::first) return stop.widget;
        if (direction == Direction::last) {
            nearest = stop.widget;
            continue;
        }
        auto const far = distance(centre_of(*here), centre_of(stop), direction);
        if (!far || *far >= least) continue;
        least = *far;
        nearest = stop.widget;
    }
    return nearest;
}

void TabWalk::visited(QWidget const& widget) {
    auto const here = find(&widget);
    if (here != m_stops.end() && here->control->index()) {
        m_visited[here->control->name()] = *here->control->index();
    }
}

}  // namespace navarun::desktop
