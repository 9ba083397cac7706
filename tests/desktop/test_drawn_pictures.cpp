// Pictures drawn by the build stand for their vectors at every size a screen asks for.
#include <QDir>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>

#include <gtest/gtest.h>

#include "desktop/drawn_picture.h"

namespace navarun::test {

namespace {

using desktop::DrawnPicture;

QStringList names() {
    QStringList all;
    QDir const assets{QStringLiteral(ASSETS)};
    for (auto const& file : assets.entryList({QStringLiteral("*.svg")})) all << file.chopped(4);
    return all;
}

template <typename Draw>
QImage drawn(QSize size, Draw const& draw) {
    QImage image{size, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::white);
    QPainter painter{&image};
    draw(painter, QRectF{QPointF{}, QSizeF{size}});
    return image;
}

// Mean difference of a channel, 0 to 255.
double difference(QImage const& one, QImage const& other) {
    long long sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            QColor const a = one.pixelColor(x, y);
            QColor const b = other.pixelColor(x, y);
            sum += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                   std::abs(a.blue() - b.blue());
        }
    }
    return static_cast<double>(sum) / 3.0 / (one.width() * one.height());
}

QSvgRenderer& vectors_of(QString const& name, QSvgRenderer& renderer) {
    renderer.load(QStringLiteral(ASSETS "/%1.svg").arg(name));
    return renderer;
}

TEST(DrawnPictures, HaveTheSizesOfTheirVectors) {
    EXPECT_GT(names().size(), 50);
    for (auto const& name : names()) {
        QSvgRenderer renderer;
        EXPECT_EQ(DrawnPicture{name}.natural_size(), vectors_of(name, renderer).defaultSize())
            << name.toStdString();
    }
    EXPECT_TRUE(DrawnPicture{QStringLiteral("absent")}.natural_size().isEmpty());
}

TEST(DrawnPictures, LookLikeTheirVectorsOnEveryScreen) {
    for (auto const& name : names()) {
        QSvgRenderer renderer;
        auto& vectors = vectors_of(name, renderer);
        DrawnPicture const picture{name};
        QSize const natural = picture.natural_size();
        // What is made for paper is large enough for screens at its own size.
        auto const scales =
            natural.width() > 1000 ? std::vector{0.5, 1.0} : std::vector{1.0, 1.25, 2.0, 3.0};
        for (double const scale : scales) {
            QSize const size = (QSizeF{natural} * scale).toSize();
            auto const from_picture = drawn(size, [&](QPainter& painter, QRectF const& place) {
                picture.draw(painter, place);
            });
            auto const from_vectors = drawn(size, [&](QPainter& painter, QRectF const& place) {
                vectors.render(&painter, place);
            });
            EXPECT_LT(difference(from_picture, from_vectors), 6.0)
                << name.toStdString() << " at " << scale;
        }
    }
}

// A screen of two dots to the unit gets the picture of twice the size, not the small one blown
// up: a line of the first's width would be two.
TEST(DrawnPictures, AreAsFineAsTheDevice) {
    QString const name = QStringLiteral("Image_Kundali_0");
    DrawnPicture const picture{name};
    QSize const natural = picture.natural_size();
    QImage image{natural * 2, QImage::Format_ARGB32_Premultiplied};
    image.setDevicePixelRatio(2);
    image.fill(Qt::white);
    {
        QPainter painter{&image};
        picture.draw(painter, QRectF{QPointF{}, QSizeF{natural}});
    }
    image.setDevicePixelRatio(1);
    QImage large{QStringLiteral(":/pictures/Image_Kundali_0@2x.png")};
    large.setDevicePixelRatio(1);
    auto const expected = drawn(natural * 2, [&](QPainter& painter, QRectF const& place) {
        painter.drawImage(place, large);
    });
    EXPECT_LT(difference(image, expected), 0.01);
}

}  // namespace

}  // namespace navarun::test
