// Pictures from what the build made of their vectors, at one, two and three times their size.
#include <QImage>
#include <algorithm>
#include <array>
#include <vector>

#include "desktop/drawn_picture.h"

namespace navarun::desktop {

namespace {

QString resource_of(QString const& name, char const* scale) {
    return QStringLiteral(":/pictures/%1%2.png").arg(name, QLatin1String{scale});
}

constexpr std::array scales{"", "@2x", "@3x"};

}  // namespace

struct DrawnPicture::Content {
    QSize natural_size;
    std::vector<QImage> images;  // from the smallest on
};

DrawnPicture::DrawnPicture(QString const& name) {
    auto content = std::make_unique<Content>();
    for (auto const* scale : scales) {
        QImage image{resource_of(name, scale)};
        if (image.isNull()) continue;
        // The size of the first is the size meant, whatever a file says of its dots.
        image.setDevicePixelRatio(1);
        if (content->images.empty()) content->natural_size = image.size();
        content->images.push_back(image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    if (!content->images.empty()) m_content = std::move(content);
}

DrawnPicture::~DrawnPicture() = default;

QSize DrawnPicture::natural_size() const {
    return m_content ? m_content->natural_size : QSize{};
}

void DrawnPicture::draw(QPainter& painter, QRectF const& place) const {
    if (!m_content) return;
    QSize const real = painter.combinedTransform().mapRect(place).size().toSize();
    if (real.isEmpty()) return;
    auto const& images = m_content->images;
    auto const enough = std::find_if(images.begin(), images.end(), [&](QImage const& image) {
        return image.width() >= real.width() && image.height() >= real.height();
    });
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (enough == images.end()) {
        painter.drawImage(place, images.back());
    } else {
        // Made smaller with care: fine lines must not drop out.
        painter.drawImage(
            place, enough->scaled(real, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}

QImage DrawnPicture::drawn_ahead(QSize size) const {
    if (!m_content) return {};
    for (auto const& image : m_content->images) {
        if (image.size() == size) return image;
    }
    return {};
}

QIcon icon_of(QString const& name) {
    QIcon icon;
    for (auto const* scale : scales) {
        QImage image{resource_of(name, scale)};
        image.setDevicePixelRatio(1);
        if (!image.isNull()) icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

}  // namespace navarun::desktop
