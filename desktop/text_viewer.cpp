// Opening copies of texts.
#include "desktop/text_viewer.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace navarun::desktop {

bool TextViewer::is_installed() {
    return !QStandardPaths::findExecutable(QStringLiteral("xdg-open")).isEmpty();
}

void TextViewer::show(QString const& file) {
    // A folder for each, so that the viewer's title shows the name of the file.
    QString const folder = m_folder.filePath(QString::number(++m_shown));
    QString const copy = folder + QLatin1Char('/') + QFileInfo{file}.fileName();
    if (QDir{}.mkpath(folder) && QFile::copy(file, copy)) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(copy));
    }
}

}  // namespace navarun::desktop
