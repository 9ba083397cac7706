// Showing a plain text in the user's own viewer.
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace navarun::desktop {

/// Takes each text over into a private folder of its own, which goes with the program.
class TextViewer {
  public:
    /// Whether the desktop has a program for plain text.
    static bool is_installed();
    /// Copies the file and opens the copy; the file itself may go at once.
    void show(QString const& file);

  private:
    QTemporaryDir m_folder;
    int m_shown = 0;
};

}  // namespace navarun::desktop
