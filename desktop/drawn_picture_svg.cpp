// Pictures from their vectors. A start would be half reading and drawing them: what most
// screens show is at hand as an image, and the vectors are read where another size, or paper,
// asks.
#include <QFile>
#include <QResource>
#include <QSvgRenderer>
#include <utility>

#include "desktop/ahead_image.h"
#include "desktop/drawn_picture.h"

namespace navarun::desktop {

namespace {

QString vectors_of(QString const& name) {
    return QStringLiteral(":/pictures/%1.svg").arg(name);
}

// Null where the build has not drawn the picture at that size: a factor of its own, or its
// dots.
QImage image_ahead(QString const& name, QString const& size) {
    return ahead_image(
        QResource{QStringLiteral(":/ahead/%1@%2").arg(name, size)}.uncompressedData());
}

}  // namespace

struct DrawnPicture::Content {
    explicit Content(QString name_) : name{std::move(name_)} {}

    QSvgRenderer& vectors() {
        if (!m_vectors) m_vectors = std::make_unique<QSvgRenderer>(vectors_of(name));
        return *m_vectors;
    }

    QString name;
    QSize natural_size;
    QImage at_natural_size;  // null where the build has not drawn it

  private:
    std::unique_ptr<QSvgRenderer> m_vectors;  // once read
};

DrawnPicture::DrawnPicture(QString const& name) {
    if (!QFile::exists(vectors_of(name))) return;
    m_content = std::make_unique<Content>(name);
    m_content->at_natural_size = image_ahead(name, QStringLiteral("1"));
    m_content->natural_size = m_content->at_natural_size.isNull()
                                  ? m_content->vectors().defaultSize()
                                  : m_content->at_natural_size.size();
    if (natural_size().isEmpty()) m_content.reset();
}

DrawnPicture::~DrawnPicture() = default;

QSize DrawnPicture::natural_size() const {
    return m_content ? m_content->natural_size : QSize{};
}

void DrawnPicture::draw(QPainter& painter, QRectF const& place) const {
    if (m_content) m_content->vectors().render(&painter, place);
}

QImage DrawnPicture::drawn_ahead(QSize size) const {
    if (!m_content) return {};
    if (size == natural_size()) return m_content->at_natural_size;
    if (size == natural_size() * 2) return image_ahead(m_content->name, QStringLiteral("2"));
    return image_ahead(m_content->name,
                       QStringLiteral("%1x%2").arg(size.width()).arg(size.height()));
}

QIcon icon_of(QString const& name) {
    QIcon icon;
    for (auto const* size : {"0.125", "0.25", "0.5", "1"}) {
        icon.addPixmap(QPixmap::fromImage(image_ahead(name, QLatin1String{size})));
    }
    return icon;
}

}  // namespace navarun::desktop
