// Setting the toolkit up.
#include "desktop/application.h"

#include <QFont>
#include <QImageReader>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QToolTip>
#include <QTranslator>

#include "desktop/compact_style.h"
#include "desktop/drawn_picture.h"
#include "desktop/spoken.h"

namespace navarun::desktop {

namespace {

// Every role in every state, so that nothing is left to the desktop's theme.
QPalette own_palette() {
    QColor const ink{0x1A, 0x1A, 0x1A};
    QColor const faint{0x80, 0x80, 0x80};
    QColor const ground{0xEF, 0xF2, 0xF5};
    struct Row {
        QPalette::ColorRole role;
        QColor colour;
        QColor disabled;
    };
    Row const rows[]{
        {QPalette::WindowText, ink, faint},
        {QPalette::Button, ground, ground},
        {QPalette::Light, Qt::white, Qt::white},
        {QPalette::Midlight, {0xF7, 0xF9, 0xFA}, {0xF7, 0xF9, 0xFA}},
        {QPalette::Dark, {0x9F, 0xB3, 0xC4}, {0x9F, 0xB3, 0xC4}},
        {QPalette::Mid, {0xB8, 0xC6, 0xD2}, {0xB8, 0xC6, 0xD2}},
        {QPalette::Text, Qt::black, faint},
        {QPalette::BrightText, Qt::white, Qt::white},
        {QPalette::ButtonText, ink, faint},
        {QPalette::Base, Qt::white, Qt::white},
        {QPalette::Window, ground, ground},
        {QPalette::Shadow, {0x64, 0x64, 0x64}, {0x64, 0x64, 0x64}},
        {QPalette::Highlight, {0x0B, 0x5A, 0xA6}, {0xB8, 0xC6, 0xD2}},
        {QPalette::HighlightedText, Qt::white, ink},
        {QPalette::Link, {0x0B, 0x3A, 0x66}, faint},
        {QPalette::LinkVisited, {0x4A, 0x14, 0x68}, faint},
        {QPalette::AlternateBase, {0xF4, 0xF8, 0xFB}, {0xF4, 0xF8, 0xFB}},
        {QPalette::ToolTipBase, {0xFF, 0xFD, 0xF3}, {0xFF, 0xFD, 0xF3}},
        {QPalette::ToolTipText, ink, ink},
        {QPalette::PlaceholderText, faint, faint},
    };
    QPalette palette;
    for (auto const& row : rows) {
        palette.setColor(QPalette::Active, row.role, row.colour);
        palette.setColor(QPalette::Inactive, row.role, row.colour);
        palette.setColor(QPalette::Disabled, row.role, row.disabled);
    }
    return palette;
}

}  // namespace

void set_up(QApplication& application) {
    QApplication::setApplicationName(QStringLiteral("N.A.V.A.R.U.N"));
    QApplication::setApplicationVersion(QStringLiteral(NAVARUN_VERSION));
    QApplication::setWindowIcon(icon_of(QStringLiteral("navarun")));
    // Under this name the desktop knows the program's entry in its menus.
    QApplication::setDesktopFileName(QStringLiteral("fr.navarun.Navarun"));
    QApplication::setStyle(new CompactStyle);

    // The colours of the window are its own: a dark desktop must not put white on white.
    QApplication::setPalette(own_palette());
    QToolTip::setPalette(own_palette());
    install_roles();

    // Scans and photographs are larger than the toolkit takes by itself.
    constexpr int largest_picture = 1024;  // megabytes, decoded
    QImageReader::setAllocationLimit(largest_picture);

    // The toolkit's own words are French whatever the locale.
    QLocale const french{QLocale::French, QLocale::France};
    QLocale::setDefault(french);
    auto* const translator = new QTranslator{&application};
    // The program brings them along where the toolkit is part of it.
    bool const own_words = translator->load(QStringLiteral(":/translations/qtbase_fr.qm"));
    if (own_words || translator->load(french, QStringLiteral("qtbase"), QStringLiteral("_"),
                                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(translator);
    }

    // Fonts of the same metrics where the named ones are not installed.
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("MS Sans Serif"),
                              QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Microsoft Sans Serif"),
                              QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Arial Narrow"),
                              QStringLiteral("Liberation Sans Narrow"));
}

}  // namespace navarun::desktop
