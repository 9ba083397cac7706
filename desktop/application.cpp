// Setting the toolkit up.
#include "desktop/application.h"

#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include "desktop/compact_style.h"

namespace navarun::desktop {

void set_up(QApplication& application) {
    QApplication::setApplicationName(QStringLiteral("N.A.V.A.R.U.N"));
    QApplication::setApplicationVersion(QStringLiteral(NAVARUN_VERSION));
    QApplication::setWindowIcon(QIcon{QStringLiteral(":/pictures/navarun.svg")});
    QApplication::setStyle(new CompactStyle);

    // The toolkit's own words are French whatever the locale.
    QLocale const french{QLocale::French, QLocale::France};
    QLocale::setDefault(french);
    auto* const translator = new QTranslator{&application};
    if (translator->load(french, QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }

    // Fonts of the same metrics where the named ones are not installed.
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("MS Sans Serif"),
                              QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Arial Narrow"),
                              QStringLiteral("Liberation Sans Narrow"));
}

std::filesystem::path application_folder(char const* started_as) {
    std::filesystem::path path{started_as};
    if (!path.has_parent_path()) {
        // Found along the search path.
        path = QStandardPaths::findExecutable(QString::fromLocal8Bit(started_as)).toStdString();
    }
    return std::filesystem::absolute(path).parent_path();
}

}  // namespace navarun::desktop
