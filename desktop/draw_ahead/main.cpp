// Draws pictures at some sizes, as the program would from their vectors, so that it need not.
//
//   draw_ahead FOLDER SIZE[,SIZE]... PICTURE.svg...
//
// leaves PICTURE@SIZE in FOLDER, in the form of desktop/ahead_image.h. A size is a factor of
// the picture's own, as 0.5, or dots, as 305x105.
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <iostream>

#include "desktop/ahead_image.h"

namespace {

bool is_opaque(QImage const& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0xFF) return false;
        }
    }
    return true;
}

QSize dots(QString const& size, QSize natural) {
    auto const sides = size.split(QLatin1Char('x'));
    return sides.size() == 2 ? QSize{sides[0].toInt(), sides[1].toInt()}
                             : (QSizeF{natural} * size.toDouble()).toSize();
}

bool draw(QString const& file, QString const& wanted, QString const& folder) {
    QSvgRenderer vectors{file};
    if (!vectors.isValid()) return false;
    QSize const size = dots(wanted, vectors.defaultSize());
    if (size.isEmpty()) return false;
    QImage image{size, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    vectors.render(&painter, QRectF{QPointF{}, QSizeF{size}});
    painter.end();
    // What hides all below it is painted without a look at what that is.
    if (is_opaque(image)) image.convertTo(QImage::Format_RGB32);
    QString const name = QFileInfo{file}.completeBaseName();
    QFile drawn{QStringLiteral("%1/%2@%3").arg(folder, name, wanted)};
    QByteArray const bytes = navarun::desktop::ahead_bytes(image);
    return drawn.open(QIODevice::WriteOnly) && drawn.write(bytes) == bytes.size();
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application{argc, argv};
    QStringList const arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::cerr << "usage: draw_ahead FOLDER SIZE[,SIZE]... PICTURE.svg...\n";
        return 2;
    }
    for (auto const& file : arguments.sliced(3)) {
        for (auto const& size : arguments[2].split(QLatin1Char(','))) {
            if (draw(file, size, arguments[1])) continue;
            std::cerr << "cannot draw " << file.toStdString() << " at " << size.toStdString()
                      << "\n";
            return 1;
        }
    }
    return 0;
}
