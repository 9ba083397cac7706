// The texts of the window in every scheme: each stands out from what lies under it.
#include <QImage>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "core/lords.h"
#include "desktop/to_qt.h"
#include "tests/desktop/contrast.h"
#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

// What the given colours of a text and its ground force, and what they do reach.
struct Forced {
    std::uint32_t text;
    std::uint32_t ground;  // 0xRRGGBB, or any_ground
    double least;
};
constexpr std::uint32_t any_ground = 0xFFFFFFFF;
constexpr Forced forced_pairs[] = {
    {0x808080, any_ground, 3.8},  // dates and names aside, on the boxes of the chart
    {0x808000, any_ground, 4.0},  // names of the periods, on the same
    {0xFFFFFF, 0x2C8EDC, 3.4},    // headings on the bands of the azure schemes
    {0xFFFFFF, 0xC34AED, 3.8},    // and of the mauve ones
    {0xFF0000, any_ground, 3.3},  // the Julian calendar's name, on the cloud
};

class TextsOverPictures : public Window {
  protected:
    // The window with its labels and without them: where the two differ, a label has its ink.
    struct Sheets {
        QImage with_labels;
        QImage without_labels;
    };
    Sheets sheets() {
        Sheets found{.with_labels = grabbed(), .without_labels = {}};
        std::vector<QWidget*> hidden;
        for (auto* control : form().controls()) {
            auto* const label = dynamic_cast<screen::Label*>(control);
            if (label == nullptr || !widget(*label).isVisible()) continue;
            hidden.push_back(&widget(*label));
            widget(*label).hide();
        }
        found.without_labels = grabbed();
        for (auto* label : hidden) label->show();
        return found;
    }

    // The colours that lie under the ink of a label without ground; none where it has no ink.
    std::set<QRgb> under_ink(Sheets const& sheets, screen::Label const& label) {
        std::set<QRgb> colours;
        QRect const place = on_canvas(widget(label));
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                QRgb const ground = sheets.without_labels.pixel(x, y);
                if (sheets.with_labels.pixel(x, y) != ground) colours.insert(ground);
            }
        }
        return colours;
    }
    // The smallest rectangle round the ink of a label, on the canvas.
    QRect ink_of(Sheets const& sheets, screen::Label const& label) {
        QRect ink;
        QRect const place = on_canvas(widget(label));
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                bool const differs =
                    sheets.with_labels.pixel(x, y) != sheets.without_labels.pixel(x, y);
                if (differs) ink |= QRect{x, y, 1, 1};
            }
        }
        return ink;
    }

    // Every pair of a shown text's colour and its ground; the worst pixel where that is a
    // picture.
    void check_all(std::string const& state) {
        Sheets const now = sheets();
        int checked = 0;
        for (auto* control : form().controls()) {
            auto* const text = dynamic_cast<screen::TextControl*>(control);
            if (text == nullptr || !widget_of(*control).isVisible()) continue;
            auto* const label = dynamic_cast<screen::Label*>(control);
            auto* const button = dynamic_cast<screen::Button*>(control);
            if (button != nullptr || dynamic_cast<screen::Frame*>(control) != nullptr) continue;
            if (label != nullptr && label->Caption.get().empty()) continue;
            QColor const fore = desktop::to_qt(text->ForeColor.get());
            ++checked;
            if (label == nullptr || label->Opaque) {
                check(state, *text, fore, desktop::to_qt(text->BackColor.get()));
                continue;
            }
            for (QRgb const ground : under_ink(now, *label)) check(state, *text, fore, ground);
        }
        EXPECT_GE(checked, 30) << state;
    }

  private:
    QWidget& widget_of(screen::Control const& control) { return widget(control); }
    QWidget& canvas() { return *window().findChild<QWidget*>(QStringLiteral("canvas")); }
    QImage grabbed() { return canvas().grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QRect on_canvas(QWidget& shown) {
        return QRect{shown.mapTo(&canvas(), QPoint{0, 0}), shown.size()} & canvas().rect();
    }

    static void check(std::string const& state, screen::TextControl const& control,
                      QColor const& fore, QColor const& ground) {
        double least = readable;
        for (auto const& pair : forced_pairs) {
            bool const same_ground =
                pair.ground == any_ground || QColor::fromRgb(pair.ground) == ground;
            if (QColor::fromRgb(pair.text) == fore && same_ground) least = pair.least;
        }
        EXPECT_GE(contrast(fore, ground), least)
            << control.full_name() << " in " << state << ": " << fore.name().toStdString()
            << " on " << ground.name().toStdString();
    }
};

std::array<screen::MenuEntry Form1::*, 4> const scheme_entries{
    &Form1::MnuAzur_cycle, &Form1::MnuAzur_Aum, &Form1::MnuMauve_cycle, &Form1::MnuMauve_Aum};

class SchemeTexts : public TextsOverPictures, public testing::WithParamInterface<int> {
  protected:
    SchemeTexts() { choose_menu(form().*scheme_entries[static_cast<std::size_t>(GetParam())]); }
    std::string scheme() const { return "scheme " + std::to_string(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Schemes, SchemeTexts, testing::Range(0, 4));

// What the names of the nine lords wear in their own fields.
TEST(LordColours, AreReadable) {
    for (auto const& lord : lords) {
        EXPECT_GE(contrast(desktop::to_qt(lord.fore), desktop::to_qt(lord.back)), readable)
            << lord.name;
    }
}

// Under a text of a cell lies one flat light colour, however long the name.
TEST_P(SchemeTexts, OfTheCellsLieOnOneFlatLightColour) {
    session().act([&](screen::User&) {
        for (int cell = 1; cell <= 12; ++cell) {
            form().Label_Dasha(cell).Caption = "*Chandra";
            form().Label_Dasha(cell).FontBold = true;
            form().Label_annee(cell).Visible = true;
            form().Label_annee(cell).Caption = "Chandra";
            form().Label_mois(cell).Caption = "Chandra";
            form().Label_mois(cell).FontBold = true;
            form().Label_Solaire(cell).Visible = true;
            form().Label_Solaire(cell).Caption = "12";
        }
    });
    Sheets const now = sheets();
    std::set<QRgb> colours_of_all_cells;
    for (int cell = 1; cell <= 12; ++cell) {
        for (auto* row : {&form().Label_Dasha, &form().Label_DashaDate, &form().Label_annee,
                          &form().Label_mois, &form().Label_MoisDate, &form().Label_Solaire}) {
            auto const& label = (*row)(cell);
            // The one in the sun's box has its own ground.
            if (label.Opaque) continue;
            QRect const ink = ink_of(now, label);
            ASSERT_FALSE(ink.isEmpty()) << label.full_name();
            std::set<QRgb> colours;
            for (int y = ink.top(); y <= ink.bottom(); ++y) {
                for (int x = ink.left(); x <= ink.right(); ++x) {
                    colours.insert(now.without_labels.pixel(x, y));
                }
            }
            EXPECT_EQ(colours.size(), 1U) << label.full_name();
            EXPECT_GE(luminance(QColor{*colours.begin()}), 0.9) << label.full_name();
            colours_of_all_cells.insert(colours.begin(), colours.end());
        }
    }
    EXPECT_EQ(colours_of_all_cells.size(), 1U);
}

// Their right end stands in the middle of the window.
TEST_P(SchemeTexts, LieOnCloudsThatEndInTheColourOfTheWindow) {
    QImage const shown = sheets().without_labels;
    QRect const clouds = desktop::to_rect(form().Image2);
    QColor const window = desktop::to_qt(form().BackColor.get());
    int const fields = desktop::to_rect(form().Combo_AnNaiss2).top();
    for (int y = clouds.top() + 2; y < fields; ++y) {
        QColor const last = shown.pixelColor(clouds.right(), y);
        int const step = std::max({std::abs(last.red() - window.red()),
                                   std::abs(last.green() - window.green()),
                                   std::abs(last.blue() - window.blue())});
        EXPECT_LE(step, 3) << scheme() << ", line " << y << ": " << last.name().toStdString();
    }
}

TEST_P(SchemeTexts, OfTheStartAreReadable) { check_all(scheme() + ", start"); }

TEST_P(SchemeTexts, OfAConsultationAreReadable) {
    click(form().Combo_jourNaiss);
    type("17051962");
    check_all(scheme() + ", stale");
    click(form().Command2);
    click(form().Command_DateNow);
    check_all(scheme() + ", present age");
    click(form().Command_categorie);
    check_all(scheme() + ", coloured palaces");
    double_click(form().Label_Solaire(3));
    check_all(scheme() + ", definition");
    choose_menu(form().Mnu_Julien);
    check_all(scheme() + ", Julian");
}

TEST_P(SchemeTexts, OfTheListsAreReadable) {
    click(form().Charge(1));
    check_all(scheme() + ", records");
    click(form().Charge(1));
    click(form().Bouton_Image);
    check_all(scheme() + ", portraits");
    click(form().Bouton_Image);
    click(form().Bouton_Internet);
    check_all(scheme() + ", addresses");
}

TEST_P(SchemeTexts, OfTheArrowWindowAreReadable) {
    choose_menu(form().MnuFleche);
    auto& fleche = session().program().fleche;
    for (int const index : fleche.Option_Fleche.indexes()) {
        auto const& option = fleche.Option_Fleche(index);
        EXPECT_GE(contrast(desktop::to_qt(option.ForeColor.get()),
                           desktop::to_qt(option.BackColor.get())),
                  readable)
            << option.full_name();
    }
}

TEST_P(SchemeTexts, OfAMessageAreReadable) {
    session().act([&](screen::User&) { form().frame_messageSauve.Visible = true; });
    check_all(scheme() + ", message");
}

}  // namespace

}  // namespace navarun::test
