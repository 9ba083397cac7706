// Showing a plain text in the user's own viewer.
#pragma once

#include <QString>

namespace navarun::desktop {

/// Takes each text over into a private folder, so that the text itself may go at once. The
/// folder is emptied when the program ends and, where a run was killed, when the next one
/// starts.
class TextViewer {
  public:
    /// @param folder  nobody else writes there; made when it is needed
    explicit TextViewer(QString folder);
    ~TextViewer();
    TextViewer(TextViewer const&) = delete;
    TextViewer& operator=(TextViewer const&) = delete;

    /// Whether the desktop has a program for plain text.
    static bool is_installed();
    /// Copies the file into the private folder. @return the copy; empty where that failed.
    QString take_over(QString const& file);
    /// Opens a copy of the file.
    void show(QString const& file);

  private:
    QString m_folder;
    int m_taken = 0;
};

}  // namespace navarun::desktop
