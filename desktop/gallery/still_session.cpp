// The clock that stands still, and the answers.
#include "desktop/gallery/still_session.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace navarun::gallery {

Date StillSession::today() { return *date_of(21, 11, 2026); }

double StillSession::seconds_since_midnight() { return (10 * 60 + 15) * 60; }

void StillSession::wait(double, std::string_view) {
    show_changes();
    if (on_wait) on_wait();
}

Answer StillSession::box(std::string_view title, std::string_view text, BoxButtons buttons) {
    if (!on_box) return Answer::ok;
    QTimer::singleShot(0, [this] {
        auto* const shown = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (shown == nullptr) qFatal("the box did not open");
        on_box(*shown);
        shown->accept();
    });
    return Session::box(title, text, buttons);
}

}  // namespace navarun::gallery
