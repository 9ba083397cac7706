// The pictures: all there, and drawn with what every renderer knows.
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

#include "desktop/pictures.h"
#include "desktop/to_qt.h"
#include "shell/image_store.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

// --- Every picture that a name can call for -------------------------------------------------

struct Wanted {
    std::string name;
    QSize size;
};

std::vector<Wanted> stored_pictures() {
    std::vector<Wanted> all;
    for (auto const& stored : image_store) {
        QSize const size{stored.width, stored.height};
        if (stored.first_member > stored.last_member) {
            all.push_back({std::string{stored.name}, size});
        }
        for (int i = stored.first_member; i <= stored.last_member; ++i) {
            all.push_back({screen::Picture{stored.name, i}.name(), size});
        }
    }
    return all;
}

TEST(Pictures, OfTheStoreAreThereAtTheirNominalSize) {
    desktop::Pictures pictures;
    auto const all = stored_pictures();
    EXPECT_EQ(all.size(), 34U);
    for (auto const& wanted : all) {
        EXPECT_EQ(pictures.natural_size(wanted.name), wanted.size) << wanted.name;
    }
}

// The sizes that the design gives, typed once more.
TEST(Pictures, OfTheStoreHaveTheSizesOfTheDesign) {
    desktop::Pictures pictures;
    std::pair<char const*, QSize> const sizes[] = {
        {"Image_Kundali(0)", {491, 479}},
        {"Image_Kundali(3)", {491, 479}},
        {"Image_Titre_Navarun(0)", {200, 27}},
        {"Image_nuage_haut(0)", {214, 60}},
        {"Image_nuage_Bas(0)", {94, 65}},
        {"Image_heure(0)", {15, 26}},
        {"Image_DateNow(0)", {24, 24}},
        {"CycleBouton(0)", {24, 24}},
        {"Diskette(0)", {32, 32}},
        {"reset_efface(0)", {32, 32}},
        {"reset_efface(1)", {24, 24}},
        {"DOSSIER(1)", {24, 24}},
        {"DOSSIER(4)", {24, 24}},
        {"Image_efface_Photo", {24, 24}},
        {"Image_Web_Efface", {24, 24}},
        {"Image_Ganesha", {139, 180}},
        {"Image_Curseur", {32, 32}},
        {"Image_Deplace", {32, 32}},
        {"Picture_NoirBlanc", {1637, 1599}},
        {"Image_AUM", {667, 678}},
        {"Image_cal_Julien", {17, 17}},
        {"ImageTriDeva(1)", {18, 18}},
        {"ImageTriDeva(2)", {18, 18}},
        {"ImageTriDeva(4)", {18, 18}},
        {"ImageTriDeva(5)", {18, 18}},
    };
    for (auto const& [name, size] : sizes) EXPECT_EQ(pictures.natural_size(name), size) << name;
}

TEST(Pictures, OfAnotherNameAreNone) {
    desktop::Pictures pictures;
    EXPECT_TRUE(pictures.natural_size("Image_Kundali(4)").isEmpty());
    EXPECT_TRUE(pictures.natural_size("Label_Dasha").isEmpty());
}

// What a screen of one or two dots to the unit shows is not drawn at the start but by the
// build.
TEST(Pictures, DrawnAheadAreWhatTheirVectorsDraw) {
    int ahead = 0;
    for (auto const& file : QDir{QStringLiteral(":/pictures")}.entryList()) {
        QString const name = QFileInfo{file}.completeBaseName();
        desktop::DrawnPicture const picture{name};
        for (int const scale : {1, 2}) {
            QSize const size = picture.natural_size() * scale;
            QImage const image = picture.drawn_ahead(size);
            if (image.isNull()) continue;
            ++ahead;
            QImage drawn{size, QImage::Format_ARGB32_Premultiplied};
            drawn.fill(Qt::transparent);
            QPainter painter{&drawn};
            picture.draw(painter, QRectF{QPointF{}, QSizeF{size}});
            painter.end();
            EXPECT_EQ(image.convertToFormat(drawn.format()), drawn) << name.toStdString();
        }
        EXPECT_TRUE(picture.drawn_ahead(picture.natural_size() * 1.25).isNull());
    }
    EXPECT_GE(ahead, 2 * 40);
}

class WindowPictures : public Window {};

TEST_F(WindowPictures, OfEveryControlAreThereAndNotLargerThanTheirButton) {
    int checked = 0;
    for (auto* shown : session().program().screen.forms()) {
        for (auto* control : shown->controls()) {
            auto const* const button = dynamic_cast<screen::Button const*>(control);
            auto const* const image = dynamic_cast<screen::Image const*>(control);
            auto const* const box = dynamic_cast<screen::PictureBox const*>(control);
            std::string const name = button != nullptr  ? button->Picture.get().name()
                                     : image != nullptr ? image->Picture.get().name()
                                     : box != nullptr   ? box->Picture.get().name()
                                                        : "";
            if (name.empty()) continue;
            ++checked;
            QSize const size = session().pictures().natural_size(name);
            EXPECT_FALSE(size.isEmpty()) << name;
            if (button == nullptr) continue;
            QSize const room = desktop::to_rect(*button).size();
            EXPECT_LE(size.width(), room.width()) << name;
            EXPECT_LE(size.height(), room.height()) << name;
        }
    }
    EXPECT_GE(checked, 20);
}

// Another size than their own, which the build knows: drawn from their vectors they would hold
// up every start.
TEST_F(WindowPictures, OfTheCloudsAndTheSmallButtonsAreDrawnAheadAsTheyAreShown) {
    struct Shown {
        screen::Control const& control;
        std::vector<char const*> names;
        int edge = 0;  // pixels at each side of a button
    };
    Shown const all[]{
        {form().Image1, {"Image_nuage_Bas_0", "Image_nuage_Bas_1"}},
        {form().Image2, {"Image_nuage_haut_0", "Image_nuage_haut_1"}},
        {form().Command_reset, {"reset_efface_0", "reset_efface_1"}, 1},
        {form().Command_Disk_Vert, {"Diskette_0", "Diskette_1"}, 1},
    };
    for (auto const& [control, names, edge] : all) {
        QSize const room = widget(control).size() - 2 * QSize{edge, edge};
        for (auto const* name : names) {
            desktop::DrawnPicture const picture{QLatin1String{name}};
            QSize const size =
                edge == 0 ? room : picture.natural_size().scaled(room, Qt::KeepAspectRatio);
            EXPECT_FALSE(picture.drawn_ahead(size).isNull()) << name;
            EXPECT_FALSE(picture.drawn_ahead(size * 2).isNull()) << name;
        }
    }
}

TEST(Pictures, OfAMenuBarWithoutRoomIsAnArrowToTheRight) {
    auto const arrow =
        QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    QImage const drawn = arrow.pixmap(QSize{16, 16}).toImage();
    int inked = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) inked += qAlpha(drawn.pixel(x, y)) > 0 ? 1 : 0;
    }
    EXPECT_GT(inked, 8);
    EXPECT_LT(inked, 16 * 16 / 2) << "its ground is not clear";
}

// --- What a picture file may hold -----------------------------------------------------------

std::vector<QString> picture_files() {
    std::vector<QString> files;
    QDirIterator all{QStringLiteral(":/pictures"), QDirIterator::Subdirectories};
    while (all.hasNext()) files.push_back(all.next());
    std::ranges::sort(files);
    return files;
}

std::set<QString> const known_elements{
    "svg",  "g",        "path",    "rect", "circle",         "ellipse",
    "line", "polyline", "polygon", "defs", "linearGradient", "radialGradient",
    "stop", "title",    "desc",
};
// They call for what a simple renderer leaves out, or reach outside the file.
std::set<QString> const barred_attributes{
    "style",        "class",      "filter",     "mask", "clip-path",   "href",
    "marker-start", "marker-mid", "marker-end", "src",  "font-family",
};

TEST(PictureFiles, AreWellFormedAndUseSimpleElementsOnly) {
    auto const files = picture_files();
    ASSERT_GE(files.size(), 43U);
    for (auto const& name : files) {
        QFile file{name};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        QXmlStreamReader reader{&file};
        while (!reader.atEnd()) {
            reader.readNext();
            EXPECT_FALSE(reader.isDTD()) << name.toStdString();
            EXPECT_FALSE(reader.isProcessingInstruction()) << name.toStdString();
            if (!reader.isStartElement()) continue;
            EXPECT_TRUE(known_elements.contains(reader.name().toString()))
                << name.toStdString() << " holds " << reader.name().toString().toStdString();
            for (auto const& attribute : reader.attributes()) {
                QString const what = attribute.name().toString();
                EXPECT_FALSE(barred_attributes.contains(what) || what.startsWith("on"))
                    << name.toStdString() << " has " << what.toStdString();
                EXPECT_FALSE(attribute.value().contains(QLatin1String("://")))
                    << name.toStdString() << " reaches "
                    << attribute.value().toString().toStdString();
            }
        }
        EXPECT_FALSE(reader.hasError())
            << name.toStdString() << ": " << reader.errorString().toStdString();
    }
}

TEST(PictureFiles, AreAllRendered) {
    for (auto const& name : picture_files()) {
        QSvgRenderer renderer{name};
        ASSERT_TRUE(renderer.isValid()) << name.toStdString();
        QImage image{renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied};
        image.fill(Qt::transparent);
        QPainter painter{&image};
        renderer.render(&painter);
        painter.end();
        bool drawn = false;
        for (int y = 0; y < image.height() && !drawn; ++y) {
            for (int x = 0; x < image.width() && !drawn; ++x) {
                drawn = qAlpha(image.pixel(x, y)) > 0;
            }
        }
        EXPECT_TRUE(drawn) << name.toStdString() << " is empty";
    }
}

// --- Told apart without colours -------------------------------------------------------------

QImage rendered(std::string const& name, QColor const& ground) {
    desktop::Pictures pictures;
    QSize const size = pictures.natural_size(name);
    QImage image{size, QImage::Format_RGB32};
    image.fill(ground);
    QPainter painter{&image};
    pictures.draw(painter, name, QRectF{QPointF{0, 0}, QSizeF{size}});
    return image;
}

// Pixels whose light differs by more than a fifth of the range.
int pixels_of_other_light(QImage const& one, QImage const& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            int const difference = qGray(one.pixel(x, y)) - qGray(other.pixel(x, y));
            count += std::abs(difference) > 51 ? 1 : 0;
        }
    }
    return count;
}

struct Pair {
    char const* name;
    char const* one;
    char const* other;
    friend std::ostream& operator<<(std::ostream& out, Pair const& row) {
        return out << row.name;
    }
};
constexpr Pair state_pairs[] = {
    {"true_and_stale_cycle", "CycleBouton(0)", "CycleBouton(1)"},
    {"saved_and_unsaved", "Diskette(0)", "Diskette(1)"},
    {"folder_1_by_its_state", "DOSSIER(1)", "DOSSIER(2)"},
    {"folder_2_by_its_state", "DOSSIER(3)", "DOSSIER(4)"},
    {"active_folder_1_or_2", "DOSSIER(1)", "DOSSIER(3)"},
    {"inactive_folder_1_or_2", "DOSSIER(2)", "DOSSIER(4)"},
    {"portrait_and_its_removal", "Bouton_Image", "Image_efface_Photo"},
    {"address_and_its_removal", "Bouton_Internet", "Image_Web_Efface"},
    {"two_kinds_of_coincidence", "ImageTriDeva(1)", "ImageTriDeva(4)"},
};
class TwoStates : public testing::TestWithParam<Pair> {};
TEST_P(TwoStates, AreToldApartWithoutColours) {
    auto const one = rendered(GetParam().one, Qt::white);
    auto const other = rendered(GetParam().other, Qt::white);
    if (one.size() == other.size()) {
        EXPECT_GE(pixels_of_other_light(one, other), 12);
    }
    EXPECT_NE(one, other);
}
INSTANTIATE_TEST_SUITE_P(Pairs, TwoStates, testing::ValuesIn(state_pairs),
                         [](auto const& row) { return row.param.name; });

TEST(PrintedPictures, AreBlackOnWhite) {
    for (auto const* name : {"Picture_NoirBlanc", "Image_AUM", "ImageTriDeva_NB(1)",
                             "ImageTriDeva_NB(2)", "Image_PalaisDestin_NB"}) {
        auto const image = rendered(name, Qt::white);
        bool has_ink = false;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QColor const pixel{image.pixel(x, y)};
                // Edges are grey, never coloured.
                ASSERT_EQ(pixel.hsvSaturation(), 0) << name << " at " << x << ',' << y;
                has_ink = has_ink || pixel.value() < 16;
            }
        }
        EXPECT_TRUE(has_ink) << name;
    }
}

}  // namespace

}  // namespace navarun::test
