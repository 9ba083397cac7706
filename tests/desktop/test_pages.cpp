// The page on paper and in the preview: the same texts in the same places.
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "desktop/page_painter.h"
#include "desktop/to_qt.h"
#include "print/lords_listing.h"
#include "print/report.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {
namespace {

/// A text as it reached a device, in inches of the page.
struct Placed {
    QString text;
    double left;
    double baseline;
    double right;
};

/// A device that notes the texts drawn on it.
class Notes : public QPaintEngine {
  public:
    explicit Notes(double inch) : QPaintEngine{AllFeatures}, m_inch{inch} {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(QPaintEngineState const&) override {}
    void drawPixmap(QRectF const&, QPixmap const&, QRectF const&) override {}
    void drawPolygon(QPointF const*, int, PolygonDrawMode) override {}
    void drawPath(QPainterPath const&) override {}
    void drawImage(QRectF const&, QImage const&, QRectF const&,
                   Qt::ImageConversionFlags) override {}
    Type type() const override { return User; }
    void drawTextItem(QPointF const& where, QTextItem const& item) override {
        auto const& place = painter()->transform();
        QPointF const left = place.map(where) / m_inch;
        QPointF const right = place.map(where + QPointF{item.width(), 0}) / m_inch;
        placed.push_back({item.text(), left.x(), left.y(), right.x()});
    }
    std::vector<Placed> placed;

  private:
    double m_inch;
};

class NotingDevice : public QPaintDevice {
  public:
    NotingDevice(double inch, double pixel_ratio)
        : m_notes{inch}, m_inch{inch}, m_pixel_ratio{pixel_ratio} {}
    QPaintEngine* paintEngine() const override { return &m_notes; }
    std::vector<Placed> const& placed() const { return m_notes.placed; }

  protected:
    int metric(PaintDeviceMetric what) const override {
        switch (what) {
            case PdmWidth:
                return static_cast<int>(screen::a4.width * m_inch);
            case PdmHeight:
                return static_cast<int>(screen::a4.height * m_inch);
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return 96;
            case PdmDevicePixelRatio:
                return static_cast<int>(m_pixel_ratio);
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(m_pixel_ratio * devicePixelRatioFScale());
            default:
                return QPaintDevice::metric(what);
        }
    }

  private:
    mutable Notes m_notes;
    double m_inch;
    double m_pixel_ratio;
};

std::vector<Placed> placed_on(desktop::Pictures& pictures, screen::Page const& page,
                              double inch, desktop::PageDevice device, double pixel_ratio = 1) {
    NotingDevice paper{inch, pixel_ratio};
    QPainter painter{&paper};
    desktop::paint_page(painter, pictures, page, inch, device);
    painter.end();
    return paper.placed();
}

constexpr double preview_inch = 340.0 * 1440 / 11906;  // the box is 340 pixels wide

class Pages : public Window {
  protected:
    // A person, a portrait apart: note, marks of the year, short words and long.
    screen::Page report(double ratio) {
        auto& program = session().program();
        session().act([&](screen::User& user) { user.set_text(form().Text_prenom, "Zoé"); });
        std::string note;
        while (note.size() < 1200) note += "une consultation à revoir avant l'été ";
        session().act([&](screen::User& user) { user.set_text(form().Text_Note, note); });
        program.printing.imprime_palais_destin = true;
        return *PrintRoutine(program, ratio);
    }
    double preview_ratio() const { return 5100.0 / 11906; }
};

void expect_alike(std::vector<Placed> const& one, std::vector<Placed> const& other,
                  double tolerance) {
    ASSERT_EQ(one.size(), other.size());
    ASSERT_GT(one.size(), 80u);
    for (std::size_t i = 0; i < one.size(); ++i) {
        EXPECT_EQ(one[i].text, other[i].text);
        EXPECT_NEAR(one[i].left, other[i].left, tolerance) << one[i].text.toStdString();
        EXPECT_NEAR(one[i].baseline, other[i].baseline, tolerance) << one[i].text.toStdString();
        EXPECT_NEAR(one[i].right, other[i].right, tolerance) << one[i].text.toStdString();
    }
}

// Within a hundredth of a millimetre: the lines of the preview end where those of the paper do.
TEST_F(Pages, TextsStandAlikeOnPaperAndInThePreview) {
    auto& pictures = session().pictures();
    auto const paper =
        placed_on(pictures, report(1), desktop::page_text_units, desktop::PageDevice::paper);
    screen::Page const preview = report(preview_ratio());
    for (double const pixels : {1.0, 2.0}) {
        expect_alike(
            placed_on(pictures, preview, preview_inch, desktop::PageDevice::screen, pixels),
            paper, 0.01 / 25.4);
    }
}

TEST_F(Pages, TextsHangFromTheirUpperLeftCorner) {
    screen::Page const page = report(1);
    auto const placed = placed_on(session().pictures(), page, desktop::page_text_units,
                                  desktop::PageDevice::paper);
    std::size_t next = 0;
    for (auto const& operation : page.operations) {
        auto const* const text = std::get_if<screen::PageText>(&operation);
        if (text == nullptr || text->text.empty()) continue;
        ASSERT_LT(next, placed.size());
        EXPECT_EQ(placed[next].text, desktop::to_qt(text->text));
        EXPECT_NEAR(placed[next].left, text->x, 1e-6);
        // The ascent of the face is nine tenths of its size.
        EXPECT_NEAR(placed[next].baseline - text->y, 0.905 * text->size / 72, 0.02 / 2.54);
        ++next;
    }
    EXPECT_EQ(next, placed.size());
}

QImage drawn(desktop::Pictures& pictures, screen::Page const& page, double inch,
             desktop::PageDevice device, double pixel_ratio) {
    QSize const size = (QSizeF{screen::a4.width, screen::a4.height} * inch).toSize();
    QImage image{size * pixel_ratio, QImage::Format_RGB32};
    image.setDevicePixelRatio(pixel_ratio);
    image.fill(Qt::white);
    QPainter painter{&image};
    desktop::paint_page(painter, pictures, page, inch, device);
    return image;
}

/// How much of a rectangle of the page, in inches, is not white, from 0 to 1.
double ink(QImage const& image, double inch, QRectF const& place) {
    double const scale = inch * image.devicePixelRatioF();
    QRect const pixels = QRectF{place.topLeft() * scale, place.size() * scale}.toAlignedRect();
    double dark = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            dark += 255 - qGray(image.pixel(x, y));
        }
    }
    return dark / 255 / (pixels.width() * pixels.height());
}

// Square by square the preview has the ink of the paper, whatever the screen.
TEST_F(Pages, InkStandsAlikeOnPaperAndInThePreview) {
    auto& pictures = session().pictures();
    constexpr double paper_inch = 300;
    QImage const paper = drawn(pictures, report(1), paper_inch, desktop::PageDevice::paper, 1);
    screen::Page const preview = report(preview_ratio());
    for (double const pixels : {1.0, 2.0}) {
        QImage const screen =
            drawn(pictures, preview, preview_inch, desktop::PageDevice::screen, pixels);
        int inked = 0;
        for (int row = 0; row < 23; ++row) {
            for (int column = 0; column < 16; ++column) {
                double const x = column * 0.5;
                double const y = row * 0.5;
                QRectF const square{x, y, 0.5, 0.5};
                double const on_paper = ink(paper, paper_inch, square);
                double const on_screen = ink(screen, preview_inch, square);
                inked += on_paper > 0.01 ? 1 : 0;
                // Lines of the preview are a pixel wide, wider than on paper.
                EXPECT_NEAR(on_screen, on_paper, 0.15) << x << ", " << y << " at " << pixels;
                EXPECT_TRUE(on_paper <= 0.01 || on_screen > 0.005) << x << ", " << y;
                EXPECT_TRUE(on_screen <= 0.05 || on_paper > 0.005) << x << ", " << y;
            }
        }
        EXPECT_GT(inked, 150);
    }
}

// Under the palace the list of periods goes on: its ground covers it, so that its own texts can
// be read.
TEST_F(Pages, ThePalaceCoversTheLastPeriods) {
    auto& pictures = session().pictures();
    auto& program = session().program();
    program.printing.imprime_palais_destin = true;
    program.printing.periodes_impression.fill("");
    auto const page = [&] { return *PrintRoutine(program, 1); };
    QRect const inside = QRectF{6.32 * 150, 7.75 * 150, 1.46 * 150, 1.13 * 150}.toAlignedRect();
    auto const palace = [&] {
        return drawn(pictures, page(), 150, desktop::PageDevice::paper, 1).copy(inside);
    };
    QImage const alone = palace();
    program.printing.periodes_impression.fill("MMMMMMMMMMMM");
    EXPECT_EQ(palace(), alone);
}

TEST_F(Pages, TheBoxesOfTheOptionsShowTheirWholeTexts) {
    session().act([&](screen::User& user) { user.click(form().MnuApercu_Impression); });
    auto& options = session().program().option_impression;
    auto const& shown = *session().window(options);
    for (auto* const control : options.controls()) {
        if (control->kind() != screen::Kind::check_box) continue;
        QWidget const& box = *shown.widget(*control);
        EXPECT_LE(box.sizeHint().width(), box.width()) << control->full_name();
    }
}

// What a note pasted from elsewhere may hold.
screen::Page page_of(std::string text) {
    return {.ratio = 1,
            .operations = {screen::PageText{.x = 0.5,
                                            .y = 1,
                                            .text = std::move(text),
                                            .font = "Arial Narrow",
                                            .size = 14,
                                            .colour = screen::black}}};
}

TEST_F(Pages, TabsLeadToTheNextStop) {
    auto& pictures = session().pictures();
    auto const placed = placed_on(pictures, page_of("un\t\t\tdeux"), desktop::page_text_units,
                                  desktop::PageDevice::paper);
    ASSERT_EQ(placed.size(), 2u);
    EXPECT_NEAR(placed[1].left, 0.5 + screen::first_tab_stop + 2 * screen::tab_step, 1e-6);
}

TEST_F(Pages, ATabInALongLineNeverLeadsBack) {
    auto const placed =
        placed_on(session().pictures(), page_of(std::string(60, 'W') + "\tdeux\ttrois"),
                  desktop::page_text_units, desktop::PageDevice::paper);
    ASSERT_EQ(placed.size(), 3u);
    EXPECT_GT(placed[0].right, 0.5 + screen::first_tab_stop);
    EXPECT_GE(placed[1].left, placed[0].right);
    EXPECT_GE(placed[2].left, placed[1].right);
}

// A line of the note may end between the two characters of a line end.
TEST_F(Pages, HalfALineEndLeavesNoMark) {
    auto& pictures = session().pictures();
    auto const with = drawn(pictures, page_of("avant\r"), 150, desktop::PageDevice::paper, 1);
    auto const without = drawn(pictures, page_of("avant"), 150, desktop::PageDevice::paper, 1);
    EXPECT_EQ(with, without);
}

TEST_F(Pages, ALineEndBeginsANewLine) {
    auto const placed = placed_on(session().pictures(), page_of("un\r\ndeux"),
                                  desktop::page_text_units, desktop::PageDevice::paper);
    ASSERT_EQ(placed.size(), 2u);
    EXPECT_NEAR(placed[1].left, placed[0].left, 1e-6);
    EXPECT_GT(placed[1].baseline, placed[0].baseline + 14.0 / 72);
}

// The longest names that fit into their fields run over the portrait and stay on the paper.
TEST_F(Pages, NamesOf25WideLettersAreDrawnWhole) {
    session().act([&](screen::User& user) {
        user.set_text(form().Text_prenom, std::string(25, 'W'));
        user.set_text(form().Text_nom, std::string(25, 'W'));
    });
    auto const page = *PrintRoutine(session().program(), 1);
    auto const placed = placed_on(session().pictures(), page, desktop::page_text_units,
                                  desktop::PageDevice::paper);
    auto const found = std::ranges::find_if(
        placed, [](Placed const& text) { return text.text.startsWith(QLatin1String("Www")); });
    ASSERT_NE(found, placed.end());
    EXPECT_EQ(found->text.size(), 52);
    EXPECT_NEAR(found->left, 0.5, 1e-6);
}

}  // namespace
}  // namespace navarun::test
