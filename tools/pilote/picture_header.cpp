// Headers of GIF, BMP and JPEG files.
#include "tools/pilote/picture_header.h"

#include <cstdint>
#include <cstdlib>
#include <limits>

namespace navarun::pilot {

namespace {

// Numbers in the bytes of a file; 0 beyond its end.
class Bytes {
  public:
    explicit Bytes(std::string_view bytes) : m_bytes{bytes} {}
    std::size_t size() const { return m_bytes.size(); }
    std::uint32_t at(std::size_t place) const {
        return place < m_bytes.size() ? static_cast<unsigned char>(m_bytes[place]) : 0U;
    }
    int little_16(std::size_t place) const {
        return static_cast<int>(at(place) | at(place + 1) << 8U);
    }
    int little_32(std::size_t place) const {
        return static_cast<int>(at(place) | at(place + 1) << 8U | at(place + 2) << 16U |
                                at(place + 3) << 24U);
    }
    int big_16(std::size_t place) const {
        return static_cast<int>(at(place) << 8U | at(place + 1));
    }

  private:
    std::string_view m_bytes;
};

std::optional<PictureSize> jpeg_size(Bytes const& bytes) {
    std::size_t place = 2;
    while (place + 9 < bytes.size() && bytes.at(place) == 0xFF) {
        auto const marker = bytes.at(place + 1);
        if (marker == 0xFF) {  // filling
            ++place;
            continue;
        }
        bool const alone = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7);
        bool const frame = marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 &&
                           marker != 0xC8 && marker != 0xCC;
        if (frame) return PictureSize{bytes.big_16(place + 7), bytes.big_16(place + 5)};
        place += alone ? 2 : 2 + static_cast<std::size_t>(bytes.big_16(place + 2));
    }
    return {};
}

std::optional<PictureSize> any_size(std::string_view file) {
    Bytes const bytes{file};
    bool const gif = file.starts_with("GIF87a") || file.starts_with("GIF89a");
    if (gif && file.size() < 10) return {};
    if (gif) return PictureSize{bytes.little_16(6), bytes.little_16(8)};
    if (file.starts_with("\xFF\xD8\xFF")) return jpeg_size(bytes);
    if (!file.starts_with("BM") || file.size() < 26) return {};
    // The oldest header counts in 16 bits; a height below 0 means lines from the top.
    if (bytes.little_32(14) == 12) return PictureSize{bytes.little_16(18), bytes.little_16(20)};
    // The least height has no positive of its own.
    auto const height = std::abs(static_cast<long long>(bytes.little_32(22)));
    if (height > std::numeric_limits<int>::max()) return {};
    return PictureSize{bytes.little_32(18), static_cast<int>(height)};
}

}  // namespace

std::optional<PictureSize> size_in_header(std::string_view bytes) {
    auto const size = any_size(bytes);
    if (!size || size->width <= 0 || size->height <= 0) return {};
    return size;
}

}  // namespace navarun::pilot
