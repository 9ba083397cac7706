// The size of a portrait, read from the header of its file.
#include <ostream>

#include <gtest/gtest.h>

#include "tests/files/pictures.h"
#include "tools/pilote/picture_header.h"

namespace navarun::test {

namespace {

struct HeaderCase {
    char const* name;
    std::string file;
    int width, height;  // 0: no size
    friend std::ostream& operator<<(std::ostream& out, HeaderCase const& row) {
        return out << row.name;
    }
};
std::string const app0 = segment(0xE0, std::string("JFIF\0\1\1\0\0\1\0\1\0\0", 14));
// A thumbnail in the camera's own segment has a frame header of its own.
std::string const camera = segment(0xE1, "Exif" + jpeg({frame(0xC0, 160, 120)}));

HeaderCase const header_cases[] = {
    {"gif_of_1989", gif(320, 200), 320, 200},
    {"gif_of_1987", gif(1, 2, "GIF87a"), 1, 2},
    {"gif_of_the_greatest_size", gif(65535, 65535), 65535, 65535},
    {"gif_of_another_version", gif(1, 2, "GIF88a"), 0, 0},
    {"gif_without_width", gif(0, 5), 0, 0},
    {"gif_without_height", gif(5, 0), 0, 0},
    {"bmp", bmp(640, 480), 640, 480},
    {"bmp_from_the_top", bmp(640, -480), 640, 480},
    {"bmp_of_negative_width", bmp(-640, 480), 0, 0},
    {"bmp_without_size", bmp(0, 0), 0, 0},
    {"bmp_of_the_least_height", bmp(4, -2147483648L), 0, 0},
    {"bmp_with_the_oldest_header", old_bmp(40, 30), 40, 30},
    {"jpeg", jpeg(100, 50), 100, 50},
    {"jpeg_progressive", jpeg({app0, frame(0xC2, 7, 9)}), 7, 9},
    {"jpeg_with_a_thumbnail", jpeg({app0, camera, frame(0xC0, 4000, 3000)}), 4000, 3000},
    {"jpeg_with_tables_before",
     jpeg({segment(0xDB, std::string(65, '\1')), segment(0xC4, std::string(28, '\0')),
           frame(0xC1, 3, 4)}),
     3, 4},
    {"jpeg_with_a_comment", jpeg({segment(0xFE, "\xFF\xC0 photo"), frame(0xC0, 5, 6)}), 5, 6},
    {"jpeg_with_filling_bytes", jpeg({app0, "\xFF\xFF" + frame(0xC0, 8, 2)}), 8, 2},
    {"jpeg_without_a_frame", jpeg({app0}), 0, 0},
    {"jpeg_of_no_height", jpeg({frame(0xC0, 10, 0)}), 0, 0},
    {"jpeg_of_a_segment_without_length", "\xFF\xD8\xFF\xE0" + std::string(40, '\0'), 0, 0},
    {"empty", "", 0, 0},
    {"a_text", "BONJOUR tout le monde, ceci n'est pas une image", 0, 0},
    {"png_is_none_of_the_three", "\x89PNG\r\n\x1A\n" + std::string(40, '\1'), 0, 0},
};

class Header : public testing::TestWithParam<HeaderCase> {};
TEST_P(Header, TellsTheSize) {
    auto const size = pilot::size_in_header(GetParam().file);
    if (GetParam().width == 0) {
        EXPECT_FALSE(size.has_value());
        return;
    }
    ASSERT_TRUE(size.has_value());
    EXPECT_EQ(size->width, GetParam().width);
    EXPECT_EQ(size->height, GetParam().height);
}

// Cut anywhere, a file tells its own size or none, never another.
TEST_P(Header, CutAtAnyLengthTellsTheSameSizeOrNone) {
    std::string const& file = GetParam().file;
    for (std::size_t length = 0; length < file.size(); ++length) {
        auto const size = pilot::size_in_header(std::string_view{file}.substr(0, length));
        if (!size) continue;
        ASSERT_EQ(size->width, GetParam().width) << length;
        ASSERT_EQ(size->height, GetParam().height) << length;
    }
}
INSTANTIATE_TEST_SUITE_P(Files, Header, testing::ValuesIn(header_cases),
                         [](auto const& row) { return row.param.name; });

}  // namespace

}  // namespace navarun::test
