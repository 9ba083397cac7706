// The drag of a record: a mode that begins with Control on a selected entry. A small picture
// follows the pointer; a click on a control, or letting a drag go there, drops on it. With the
// keyboard Tab and the arrows go through what a record can be dropped on, and Enter drops it.
// Any other act ends the mode.
#pragma once

#include <QObject>

namespace navarun::desktop {

class Session;

class DragMode : public QObject {
  public:
    explicit DragMode(Session& session);
    ~DragMode() override;

    /// Shows or takes away the picture at the pointer, by whether something is dragged.
    void follow_model();
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool press(int key);
    void go_to_next_target(int step);

    Session& m_session;
    bool m_shown = false;
};

}  // namespace navarun::desktop
