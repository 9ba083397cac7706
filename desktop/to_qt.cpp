// The conversions.
#include "desktop/to_qt.h"

#include <QFontDatabase>
#include <QTextDocument>
#include <functional>
#include <map>

namespace navarun::desktop {

int to_pixels(int twips) { return qRound(static_cast<double>(twips) / twips_per_pixel); }

QRect to_rect(screen::PlacedControl const& control) {
    int const left = to_pixels(control.Left);
    int const top = to_pixels(control.Top);
    return {left, top, to_pixels(control.Left + control.Width) - left,
            to_pixels(control.Top + control.Height) - top};
}

QString to_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string from_qt(QString const& text) {
    return QString{text}.replace(QLatin1Char('\n'), QStringLiteral("\r\n")).toStdString();
}

QColor to_qt(screen::Colour colour) {
    if (!colour.is_system()) return QColor::fromRgb(colour.rgb());
    switch (colour.role()) {
        case screen::SystemColour::title_bar:
            return QColor::fromRgb(0x99B4D1);
        case screen::SystemColour::window:
        case screen::SystemColour::highlight_3d:
            return Qt::white;
    }
    return Qt::white;
}

QColor deep_tone_on(QColor const& ground) {
    constexpr int from_blue_to_mauve = 240;  // degrees of hue
    return ground.hslHue() > from_blue_to_mauve ? QColor{0x4A, 0x14, 0x68}
                                                : QColor{0x0B, 0x3A, 0x66};
}

namespace {

// The family itself or, where it is not installed, its stand-in: under one name the fonts that
// look the same are loaded once.
QString installed_family(QString const& name) {
#ifdef Q_OS_WIN
    // Kept there in a few sizes of dots; its successor has the same widths in outlines.
    if (name == QLatin1String("MS Sans Serif")) return QStringLiteral("Microsoft Sans Serif");
#endif
    // All at once: the question for a single one is worked out by the rules of the system.
    static QStringList const installed = QFontDatabase::families();
    if (installed.contains(name, Qt::CaseInsensitive)) return name;
    for (auto const& stand_in : QFont::substitutes(name)) {
        if (installed.contains(stand_in, Qt::CaseInsensitive)) return stand_in;
    }
    return {};
}

struct Face {
    QString family;
    int stretch = QFont::AnyStretch;  // percent of its width
};

Face installed_face(std::string_view name) {
    QString const family = installed_family(to_qt(name));
    if (!family.isEmpty()) return {.family = family};
    if (name != "Arial Narrow") return {.family = to_qt(name)};
    // Not every Windows has the narrow one, nor a stand-in: the wide one is drawn narrow.
    constexpr int narrow_to_wide = 82;
    return {.family = installed_face("Arial").family, .stretch = narrow_to_wide};
}

}  // namespace

QFont font_named(std::string_view name) {
    // Asking the system for a family takes longer than drawing with it.
    static std::map<std::string, Face, std::less<>> known;
    auto face = known.find(name);
    if (face == known.end()) face = known.emplace(name, installed_face(name)).first;
    QFont font{face->second.family};
    font.setStretch(face->second.stretch);
    return font;
}

QFont font_of(screen::TextControl const& control) {
    QFont font = font_named(control.FontName.get());
    font.setPixelSize(qRound(control.FontSize.get() * 4 / 3));
    font.setBold(control.FontBold);
    font.setItalic(control.FontItalic);
    return font;
}

QString plain_tooltip(std::string_view text) {
    QString const plain = to_qt(text);
    return Qt::mightBeRichText(plain)
               ? QStringLiteral("<span>%1</span>").arg(plain.toHtmlEscaped())
               : plain;
}

}  // namespace navarun::desktop
