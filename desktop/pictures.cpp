// Rendering of the pictures.
#include "desktop/pictures.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <algorithm>
#include <iterator>

namespace navarun::desktop {

namespace {

// "Image_Kundali(2)" is kept as Image_Kundali_2, a single picture under its own name.
QString file_of(std::string const& name) {
    QString file = QString::fromStdString(name);
    return file.replace(QLatin1Char('('), QLatin1Char('_')).remove(QLatin1Char(')'));
}

// Where the hand points, at its nominal size.
constexpr QPoint hand_hot_spot{12, 5};

}  // namespace

DrawnPicture const* Pictures::picture(std::string const& name) {
    if (name.empty()) return nullptr;
    auto& known = m_pictures[name];
    if (!known) known = std::make_unique<DrawnPicture>(file_of(name));
    return known->natural_size().isEmpty() ? nullptr : known.get();
}

QSize Pictures::natural_size(std::string const& name) {
    auto const* const known = picture(name);
    return known == nullptr ? QSize{} : known->natural_size();
}

void Pictures::draw(QPainter& painter, std::string const& name, QRectF const& place) {
    QSize const size = place.size().toSize();
    if (size.isEmpty() || picture(name) == nullptr) return;
    double const ratio = painter.device()->devicePixelRatioF();
    painter.drawPixmap(place.topLeft(), pixmap(name, size, ratio));
}

void Pictures::draw_vectors(QPainter& painter, std::string const& name, QRectF const& place) {
    if (auto const* const known = picture(name)) known->draw(painter, place);
}

namespace {

// The portrait on the window and the same on the page.
constexpr std::size_t files_kept = 3;

// Pixels, the longer way: enough for the portrait on the finest screen and for the preview.
constexpr int glance = 720;

QDateTime written_at(QString const& path) { return QFileInfo{path}.lastModified(); }

// A large photograph takes a moment; meanwhile the pointer tells so.
class MomentOfPatience {
  public:
    explicit MomentOfPatience(QString const& path) : m_large{QFileInfo{path}.size() > large} {
        if (m_large) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~MomentOfPatience() {
        if (m_large) QGuiApplication::restoreOverrideCursor();
    }
    MomentOfPatience(MomentOfPatience const&) = delete;
    MomentOfPatience& operator=(MomentOfPatience const&) = delete;

  private:
    static constexpr qint64 large = 1'000'000;  // bytes
    bool m_large;
};

// Decoded at the size at which it is shown, never larger where the format allows it. What a
// damaged file yields is shown.
QImage decoded(QString const& path, QSize size) {
    MomentOfPatience const patience{path};
    QImageReader reader{path};
    reader.setDecideFormatFromContent(true);
    if (!size.isEmpty()) reader.setScaledSize(size);
    return reader.read();
}

}  // namespace

void Pictures::draw_file(QPainter& painter, screen::PaintedFile const& file, double dots) {
    QSize const size = (QSizeF{file.width, file.height} * dots).toSize();
    QString const path = QString::fromStdString(file.path);
    QDateTime const written = written_at(path);
    auto known = std::ranges::find_if(m_files, [&](DecodedFile const& decoded_file) {
        return decoded_file.path == file.path && decoded_file.size == size &&
               decoded_file.written == written;
    });
    if (known == m_files.end()) {
        if (m_files.size() == files_kept) m_files.pop_front();
        bool const glanced = m_glance && m_glance->path == file.path &&
                             m_glance->written == written &&
                             m_glance->size.boundedTo(size) == size;
        m_files.push_back({file.path, written, size,
                           glanced ? m_glance->image.scaled(size, Qt::IgnoreAspectRatio,
                                                            Qt::SmoothTransformation)
                                   : decoded(path, size)});
        known = std::prev(m_files.end());
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF{file.x, file.y, file.width, file.height}, known->image);
}

// Only the decoder tells whether there is anything to show. A large photograph is decoded once:
// most of what that costs lies in reading it, whatever the size that comes out.
QSize Pictures::file_size(QString const& path) {
    QImageReader reader{path};
    reader.setDecideFormatFromContent(true);
    QSize const size = reader.size();
    if (size.isEmpty()) return {};
    QSize const fitted = size.scaled(glance, glance, Qt::KeepAspectRatio);
    QSize const kept = fitted.boundedTo(size).expandedTo(QSize{1, 1});
    m_glance = {path.toStdString(), written_at(path), kept, decoded(path, kept)};
    return m_glance->image.isNull() ? QSize{} : size;
}

namespace {

QPixmap drawn(DrawnPicture const* picture, QSize size) {
    if (picture != nullptr) {
        QImage ahead = picture->drawn_ahead(size);
        if (!ahead.isNull()) return QPixmap::fromImage(std::move(ahead));
    }
    QPixmap pixmap{size};
    pixmap.fill(Qt::transparent);
    QPainter painter{&pixmap};
    if (picture != nullptr) picture->draw(painter, QRectF{QPointF{}, QSizeF{size}});
    return pixmap;
}

}  // namespace

QPixmap Pictures::pixmap(std::string const& name, QSize size, double device_pixel_ratio) {
    QSize const real = (QSizeF{size} * device_pixel_ratio).toSize();
    std::string const key =
        name + ":" + std::to_string(real.width()) + "x" + std::to_string(real.height());
    auto& known = m_pixmaps[key];
    if (known.isNull()) known = drawn(picture(name), real);
    known.setDevicePixelRatio(device_pixel_ratio);
    return known;
}

QCursor Pictures::hand_cursor(std::string const& name, double device_pixel_ratio) {
    auto& known = m_hands[{name, device_pixel_ratio}];
    if (known) return *known;
    QSize const size = natural_size(name);
    known = size.isEmpty() ? QCursor{Qt::PointingHandCursor}
                           : QCursor{pixmap(name, size, device_pixel_ratio), hand_hot_spot.x(),
                                     hand_hot_spot.y()};
    return *known;
}

}  // namespace navarun::desktop
