// Opening copies of texts.
#include "desktop/text_viewer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "desktop/outside_programs.h"

namespace navarun::desktop {

TextViewer::TextViewer(QString folder) : m_folder{std::move(folder)} {
    QDir{m_folder}.removeRecursively();
}

TextViewer::~TextViewer() { QDir{m_folder}.removeRecursively(); }

bool TextViewer::is_installed() { return has_text_opener(); }

QString TextViewer::take_over(QString const& file) {
    // A folder for each, so that the viewer's title shows the name of the file.
    QString const folder = m_folder + QLatin1Char('/') + QString::number(++m_taken);
    QString const copy = folder + QLatin1Char('/') + QFileInfo{file}.fileName();
    bool const kept = QDir{}.mkpath(folder) &&
                      QFile::setPermissions(
                          m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner) &&
                      QFile::copy(file, copy);
    return kept ? copy : QString{};
}

void TextViewer::show(QString const& file) {
    QString const copy = take_over(file);
    if (!copy.isEmpty()) open_text(copy);
}

}  // namespace navarun::desktop
