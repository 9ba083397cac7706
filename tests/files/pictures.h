// Picture files made of bytes, as small as their formats allow.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace navarun::test {

/// Appends a number in `bytes` bytes, the lowest first.
inline void little(std::string& to, unsigned long number, int bytes) {
    for (int i = 0; i < bytes; ++i) to.push_back(static_cast<char>(number >> (8 * i) & 0xFF));
}

/// Appends a number in two bytes, the highest first.
inline void big_16(std::string& to, unsigned number) {
    to.push_back(static_cast<char>(number >> 8U & 0xFF));
    to.push_back(static_cast<char>(number & 0xFF));
}

/// A GIF file of one grey pixel, of which the header tells another size.
inline std::string gif(unsigned width, unsigned height, std::string_view version = "GIF89a") {
    std::string file{version};
    little(file, width, 2);
    little(file, height, 2);
    file.append("\x80\x00\x00\x80\x80\x80\xFF\xFF\xFF", 9);
    file.append("\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00\x3B", 16);
    return file;
}

/// A BMP header of 40 bytes.
inline std::string bmp(long width, long height) {
    std::string file = "BM";
    little(file, 54, 4);
    little(file, 0, 4);
    little(file, 54, 4);
    little(file, 40, 4);
    little(file, static_cast<unsigned long>(width), 4);
    little(file, static_cast<unsigned long>(height), 4);
    little(file, 1, 2);
    little(file, 24, 2);
    file.append(24, '\0');
    return file;
}

/// A BMP header of 12 bytes, the oldest.
inline std::string old_bmp(unsigned width, unsigned height) {
    std::string file = "BM";
    little(file, 26, 4);
    little(file, 0, 4);
    little(file, 26, 4);
    little(file, 12, 4);
    little(file, width, 2);
    little(file, height, 2);
    little(file, 1, 2);
    little(file, 24, 2);
    file.append(4, '\0');
    return file;
}

/// A segment of a JPEG file.
inline std::string segment(unsigned marker, std::string_view content) {
    std::string bytes{'\xFF', static_cast<char>(marker)};
    big_16(bytes, static_cast<unsigned>(content.size()) + 2);
    return bytes.append(content);
}

/// The frame header of a JPEG file; 0xC0 is the plain one, 0xC2 the progressive one.
inline std::string frame(unsigned marker, unsigned width, unsigned height) {
    std::string content{'\x08'};
    big_16(content, height);
    big_16(content, width);
    content.append("\x01\x01\x11\x00", 4);
    return segment(marker, content);
}

/// A JPEG file of these segments, without its picture.
inline std::string jpeg(std::vector<std::string> const& segments) {
    std::string file = "\xFF\xD8";
    for (auto const& bytes : segments) file += bytes;
    return file + segment(0xDA, std::string("\x01\x01\x00\x00\x3F\x00", 6)) + "\x12\xFF\xD9";
}

inline std::string jpeg(unsigned width, unsigned height) {
    return jpeg({segment(0xE0, std::string("JFIF\0\1\1\0\0\1\0\1\0\0", 14)),
                 frame(0xC0, width, height)});
}

}  // namespace navarun::test
