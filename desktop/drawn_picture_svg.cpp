// Pictures from their vectors.
#include <QFile>
#include <QSvgRenderer>

#include "desktop/drawn_picture.h"

namespace navarun::desktop {

namespace {

QString resource_of(QString const& name) {
    return QStringLiteral(":/pictures/%1.svg").arg(name);
}

}  // namespace

struct DrawnPicture::Content {
    QSvgRenderer vectors;
};

DrawnPicture::DrawnPicture(QString const& name) {
    QString const resource = resource_of(name);
    if (!QFile::exists(resource)) return;
    m_content = std::make_unique<Content>();
    if (!m_content->vectors.load(resource)) m_content.reset();
}

DrawnPicture::~DrawnPicture() = default;

QSize DrawnPicture::natural_size() const {
    return m_content ? m_content->vectors.defaultSize() : QSize{};
}

void DrawnPicture::draw(QPainter& painter, QRectF const& place) const {
    if (m_content) m_content->vectors.render(&painter, place);
}

QIcon icon_of(QString const& name) { return QIcon{resource_of(name)}; }

}  // namespace navarun::desktop
