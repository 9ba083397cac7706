// A picture drawn by the build, as a file of the program's resources: its head, then its dots
// as the toolkit holds them in memory. Nothing is left to decode, nor to copy.
#pragma once

#include <QByteArray>
#include <QImage>
#include <cstring>

namespace navarun::desktop {

struct AheadImageHead {
    qint32 width;
    qint32 height;
    qint32 format;  // of QImage, with four bytes to the dot
};

inline QByteArray ahead_bytes(QImage const& image) {
    AheadImageHead const head{image.width(), image.height(), image.format()};
    QByteArray bytes{reinterpret_cast<char const*>(&head), sizeof head};
    bytes.append(reinterpret_cast<char const*>(image.constBits()), image.sizeInBytes());
    return bytes;
}

/// The image's dots stay in the bytes.
/// @param bytes  as ahead_bytes() made them, or none for no image.
inline QImage ahead_image(QByteArray const& bytes) {
    if (bytes.isEmpty()) return {};
    AheadImageHead head{};
    std::memcpy(&head, bytes.constData(), sizeof head);
    auto* const kept = new QByteArray{bytes};
    return {reinterpret_cast<uchar const*>(kept->constData()) + sizeof head,
            head.width,
            head.height,
            qsizetype{head.width} * 4,
            static_cast<QImage::Format>(head.format),
            [](void* given) { delete static_cast<QByteArray*>(given); },
            kept};
}

}  // namespace navarun::desktop
