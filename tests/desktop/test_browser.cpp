// The practice's files at the window: the panel, its list, the drag of a record, portraits.
#include <QBuffer>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QImage>
#include <QImageWriter>
#include <QListView>
#include <QListWidget>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QUrl>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <sys/resource.h>

#include "tests/desktop/window_fixture.h"

namespace navarun::test {

namespace {

std::string record_of(std::string const& first_name, std::string const& last_name) {
    return "\"" + first_name + "\",\"" + last_name +
           "\",\"17\",\"05\",\"19\",\"62\",0,\"\",\"note\"\r\n";
}

class BrowserWindow : public Window {
  protected:
    BrowserWindow() {
        put(data(1) / "Adam Jean.fcy", record_of("Jean", "Adam"));
        put(data(1) / "Dupont Zoe.fcy", record_of("Zoe", "Dupont"));
        put(data(1) / "Martin Luc.fcy", record_of("Luc", "Martin"));
    }

    std::filesystem::path resources() {
        return session().program().application_folder / "RESSOURCES";
    }
    std::filesystem::path data(int number) {
        return resources() / ("DATA" + std::to_string(number));
    }
    std::filesystem::path images() { return resources() / "IMAGE"; }
    static void put(std::filesystem::path const& path, std::string const& bytes) {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream{path, std::ios::binary} << bytes;
    }
    QListView& list() { return dynamic_cast<QListView&>(widget(form().File_Fichier)); }
    void click_entry(int row) {
        auto const place = list().visualRect(list().model()->index(row, 0)).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void double_click_entry(int row) {
        auto const place = list().visualRect(list().model()->index(row, 0)).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    QStringList shown_entries() {
        QStringList entries;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            entries.append(list().model()->index(row, 0).data().toString());
        }
        return entries;
    }
    int marked_row() {
        auto const rows = list().selectionModel()->selectedIndexes();
        return rows.size() == 1 ? rows.front().row() : -1;
    }

    void write_picture(std::string const& name, char const* format, QImage const& picture) {
        std::filesystem::create_directories(images());
        QImageWriter writer{QString::fromStdString((images() / name).string()), format};
        ASSERT_TRUE(writer.write(picture)) << writer.errorString().toStdString();
    }
    // Chooses a portrait as a practitioner does.
    void choose_portrait(std::string const& name) {
        click(form().Bouton_Image);
        type(name);
        press(Qt::Key_Return);
    }
    QImage portrait_box() { return widget(form().Picture_PHOTO).grab().toImage(); }
    bool box_shows(QColor const& colour) {
        QImage const shown = portrait_box();
        QColor const middle = shown.pixelColor(shown.width() / 2, shown.height() / 2);
        return std::abs(middle.red() - colour.red()) < 12 &&
               std::abs(middle.green() - colour.green()) < 12 &&
               std::abs(middle.blue() - colour.blue()) < 12;
    }
};

QImage plain(int width, int height, QColor const& colour) {
    QImage picture{width, height, QImage::Format_RGB32};
    picture.fill(colour);
    return picture;
}

TEST_F(BrowserWindow, TheFolderButtonOpensThePanelWithTheKeyboardInTheSearch) {
    click(form().Charge(1));
    EXPECT_TRUE(widget(form().Frame_FileFichier).isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().Text_Cherche));
    EXPECT_EQ(shown_entries(),
              (QStringList{"Adam Jean.fcy", "Dupont Zoe.fcy", "Martin Luc.fcy"}));
    EXPECT_EQ(marked_row(), -1);
    EXPECT_EQ(list().palette().color(QPalette::Base), QColor(0x00, 0x00, 0x40));
    click(form().Charge(1));
    EXPECT_FALSE(widget(form().Frame_FileFichier).isVisible());
}

TEST_F(BrowserWindow, ASearchMarksWhatItFindsAndEnterLoadsIt) {
    click(form().Charge(1));
    type("du");
    EXPECT_EQ(marked_row(), 1);
    EXPECT_EQ(list().toolTip().isEmpty(), false);
    press(Qt::Key_Return);
    EXPECT_EQ(form().Text_nom.Text.get(), "Dupont");
    EXPECT_EQ(form().Label_zodiac.Caption.get(), "4 °  Taureau");
    EXPECT_FALSE(widget(form().Frame_FileFichier).isVisible());
}

TEST_F(BrowserWindow, ASearchWithoutAFindMarksNothingAndEnterDoesNothing) {
    click(form().Charge(1));
    type("du");
    type("x");
    EXPECT_EQ(marked_row(), -1);
    press(Qt::Key_Return);
    EXPECT_TRUE(widget(form().Frame_FileFichier).isVisible());
    EXPECT_EQ(form().Text_nom.Text.get(), "");
}

TEST_F(BrowserWindow, TheArrowsOfTheKeyboardSelectAndEnterLoads) {
    click(form().Charge(1));
    click_entry(0);
    EXPECT_EQ(form().File_Fichier.ListIndex.get(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(form().File_Fichier.ListIndex.get(), 2);
    press(Qt::Key_Up);
    EXPECT_EQ(form().File_Fichier.ListIndex.get(), 1);
    EXPECT_EQ(marked_row(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(form().Text_nom.Text.get(), "Dupont");
}

TEST_F(BrowserWindow, ADoubleClickOnAnEntryLoadsIt) {
    click(form().Charge(1));
    double_click_entry(2);
    EXPECT_EQ(form().Text_nom.Text.get(), "Martin");
    EXPECT_FALSE(widget(form().Frame_FileFichier).isVisible());
}

TEST_F(BrowserWindow, ControlThenAClickOnTheOtherFolderMovesTheRecord) {
    click(form().Charge(1));
    click_entry(1);
    press(Qt::Key_Control);
    EXPECT_NE(session().program().screen.dragged(), nullptr);
    click(form().Charge(2));
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
    EXPECT_TRUE(std::filesystem::exists(data(2) / "Dupont Zoe.fcy"));
    EXPECT_FALSE(std::filesystem::exists(data(1) / "Dupont Zoe.fcy"));
    // The click dropped: it neither closed the panel nor switched the folder.
    EXPECT_TRUE(widget(form().Frame_FileFichier).isVisible());
    EXPECT_EQ(form().Charge(1).ToolTipText.get(), "Dossier 1 Actif");
    EXPECT_EQ(shown_entries(), (QStringList{"Adam Jean.fcy", "Martin Luc.fcy"}));
    EXPECT_EQ(form().Label_Nbr_Fiche.Caption.get(), "2");
    EXPECT_EQ(marked_row(), -1);
}

TEST_F(BrowserWindow, ADragWithTheMouseMovesTheRecord) {
    click(form().Charge(1));
    click_entry(1);
    auto* const viewport = list().viewport();
    auto const entry = list().visualRect(list().model()->index(1, 0)).center();
    auto& target = widget(form().Charge(2));
    QTest::keyPress(&list(), Qt::Key_Control);
    QTest::mousePress(viewport, Qt::LeftButton, Qt::ControlModifier, entry);
    EXPECT_NE(session().program().screen.dragged(), nullptr);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    QTest::mouseMove(&target, target.rect().center());
    QTest::mouseRelease(&target, Qt::LeftButton, Qt::ControlModifier, target.rect().center());
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(std::filesystem::exists(data(2) / "Dupont Zoe.fcy"));
    EXPECT_EQ(shown_entries(), (QStringList{"Adam Jean.fcy", "Martin Luc.fcy"}));
}

TEST_F(BrowserWindow, ADragIsEndedByEscapeAndByAnythingElse) {
    click(form().Charge(1));
    click_entry(1);
    press(Qt::Key_Control);
    press(Qt::Key_Escape);
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
    click_entry(1);
    press(Qt::Key_Control);
    click(form().Picture_KUNDALI);
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
    click_entry(1);
    press(Qt::Key_Control);
    click(form().Bouton_Image);
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
    EXPECT_EQ(shown_entries().size(), 3);
    EXPECT_TRUE(std::filesystem::is_empty(data(2)));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(BrowserWindow, ControlWithoutASelectionDragsNothing) {
    click(form().Charge(1));
    click_entry(1);
    session().act([&](screen::User&) { form().File_Fichier.ListIndex = -1; });
    press(Qt::Key_Control);
    EXPECT_EQ(session().program().screen.dragged(), nullptr);
}

TEST_F(BrowserWindow, TheDeleteKeyAsksAndDeletes) {
    click(form().Charge(1));
    click_entry(1);
    answer_next_box("OK");
    press(Qt::Key_Delete);
    EXPECT_EQ(last_box_title, "EFFACER");
    EXPECT_EQ(last_box_text.remove('\r'), "VOULEZ-VOUS EFFACER: \nDUPONT ZOE.FCY ?");
    EXPECT_EQ(last_box_buttons, (QStringList{"OK", "Annuler"}));
    EXPECT_FALSE(std::filesystem::exists(data(1) / "Dupont Zoe.fcy"));
    EXPECT_EQ(shown_entries(), (QStringList{"Adam Jean.fcy", "Martin Luc.fcy"}));
    EXPECT_EQ(marked_row(), -1);
}

TEST_F(BrowserWindow, ADeclinedDeletionKeepsFileAndMark) {
    click(form().Charge(1));
    click_entry(1);
    answer_next_box("Annuler");
    press(Qt::Key_Delete);
    EXPECT_TRUE(std::filesystem::exists(data(1) / "Dupont Zoe.fcy"));
    EXPECT_EQ(marked_row(), 1);
    EXPECT_EQ(form().File_Fichier.selected(), "Dupont Zoe.fcy");
}

// The keyboard may pass through the list on its way; what is selected is chosen, not met.
TEST_F(BrowserWindow, TheTabKeyThroughTheListSelectsNothing) {
    click(form().Charge(1));
    list().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(form().File_Fichier.ListIndex.get(), -1);
    EXPECT_EQ(marked_row(), -1);
}

TEST_F(BrowserWindow, TheDeleteButtonDeletesWhatTheMouseSelected) {
    click(form().Charge(1));
    click_entry(2);
    answer_next_box("OK");
    click(form().Command_reset);
    EXPECT_FALSE(std::filesystem::exists(data(1) / "Martin Luc.fcy"));
}

// The list asks for what it shows; a long one costs no more than a short one.
TEST_F(BrowserWindow, AHundredThousandEntriesHaveNoItemsAndScroll) {
    click(form().Charge(1));
    auto const objects = list().findChildren<QObject*>().size();
    std::vector<std::string> names;
    for (int i = 0; i < 100'000; ++i) names.push_back("Dupont " + std::to_string(i) + ".fcy");
    session().act(
        [&](screen::User&) { form().File_Fichier.set_source([&] { return names; }); });
    window().grab();
    EXPECT_EQ(list().model()->rowCount(), 100'000);
    EXPECT_EQ(dynamic_cast<QListWidget*>(&list()), nullptr);
    EXPECT_LE(list().findChildren<QObject*>().size(), objects + 8);
    list().setFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_EQ(form().File_Fichier.ListIndex.get(), 99'999);
    auto const last = list().visualRect(list().model()->index(99'999, 0));
    EXPECT_TRUE(list().viewport()->rect().contains(last.center()));
    press(Qt::Key_Home);
    EXPECT_EQ(form().File_Fichier.ListIndex.get(), 0);
    auto& bar = *list().verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    window().grab();
    click(form().Text_Cherche);
    type("dupont 9999");
    EXPECT_EQ(form().File_Fichier.selected(), "Dupont 9999.fcy");
    auto const found = list().visualRect(list().currentIndex());
    EXPECT_TRUE(list().viewport()->rect().contains(found.center()));
}

// Portraits.

TEST_F(BrowserWindow, AJpegAndABmpArePainted) {
    write_picture("rouge.jpg", "jpg", plain(100, 100, Qt::red));
    write_picture("bleu.bmp", "bmp", plain(1000, 1000, Qt::blue));
    choose_portrait("rouge");
    EXPECT_TRUE(box_shows(Qt::red));
    choose_portrait("bleu");
    EXPECT_TRUE(box_shows(Qt::blue));
    double_click(form().Picture_PHOTO);
    EXPECT_FALSE(box_shows(Qt::blue));
    EXPECT_EQ(form().Picture_PHOTO.Picture.get().name(), "Image_Ganesha");
}

TEST_F(BrowserWindow, AGifIsPainted) {
    // One pixel, the first of a palette of two: a green one.
    std::string const gif{
        "GIF89a\x01\x00\x01\x00\x80\x00\x00\x00\xC0\x00\xFF\xFF\xFF"
        "\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00\x3B",
        35};
    put(images() / "vert.gif", gif);
    choose_portrait("vert");
    EXPECT_EQ(session().exit_status(), std::nullopt);
    QImage const shown = portrait_box();
    bool green = false;
    for (int x = shown.width() / 2 - 2; x <= shown.width() / 2 + 2; ++x) {
        for (int y = shown.height() / 2 - 2; y <= shown.height() / 2 + 2; ++y) {
            QColor const colour = shown.pixelColor(x, y);
            green = green || (colour.green() > 100 && colour.red() < 100);
        }
    }
    EXPECT_TRUE(green);
}

TEST_F(BrowserWindow, ASmallPortraitKeepsItsSizeInTheMiddle) {
    write_picture("petit.bmp", "bmp", plain(20, 10, Qt::red));
    choose_portrait("petit");
    QImage const shown = portrait_box();
    int red = 0;
    for (int x = 0; x < shown.width(); ++x) {
        for (int y = 0; y < shown.height(); ++y) {
            QColor const colour = shown.pixelColor(x, y);
            if (colour.red() > 240 && colour.green() < 15 && colour.blue() < 15) ++red;
        }
    }
    EXPECT_EQ(red, 200);
    EXPECT_TRUE(box_shows(Qt::red));
}

// What the decoder yields of a damaged picture is shown.
TEST_F(BrowserWindow, AJpegThatIsCutOffStillShowsWhatThereIs) {
    QImage picture = plain(400, 400, Qt::red);
    for (int x = 0; x < 400; ++x) {
        for (int y = 0; y < 400; ++y) {
            picture.setPixelColor(x, y, QColor{220 + (x * y) % 30, (x * 7 + y) % 20, 0});
        }
    }
    QByteArray bytes;
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(picture.save(&buffer, "jpg"));
    bytes.truncate(bytes.size() * 6 / 10);
    put(images() / "abime.jpg", bytes.toStdString());
    choose_portrait("abime");
    EXPECT_EQ(session().exit_status(), std::nullopt);
    QImage const shown = portrait_box();
    EXPECT_GT(shown.pixelColor(shown.width() / 2, shown.height() / 5).red(), 180);
    EXPECT_LT(shown.pixelColor(shown.width() / 2, shown.height() / 5).blue(), 60);
}

TEST_F(BrowserWindow, AFileThatIsNoPictureEndsTheRunWithItsReport) {
    put(images() / "texte.jpg", "ceci n'est pas une image");
    answer_next_box("OK");
    choose_portrait("texte");
    EXPECT_EQ(session().exit_status(), 1);
    EXPECT_EQ(last_box_title, "N.A.V.A.R.U.N");
    EXPECT_TRUE(last_box_text.contains("texte.jpg"));
    EXPECT_EQ(last_box_buttons, QStringList{"OK"});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(BrowserWindow, AJpegHeaderWithoutAPictureEndsTheRun) {
    QByteArray bytes;
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(plain(100, 100, Qt::red).save(&buffer, "jpg"));
    bytes.truncate(60);
    put(images() / "coupe.jpg", bytes.toStdString());
    answer_next_box("OK");
    choose_portrait("coupe");
    EXPECT_EQ(session().exit_status(), 1);
}

// A grey JPEG of any size in which each block of 64 pixels takes two bits.
std::string even_jpeg(unsigned width, unsigned height) {
    auto const two = [](unsigned number) {
        return std::string{static_cast<char>(number >> 8U), static_cast<char>(number & 0xFFU)};
    };
    std::string file{"\xFF\xD8\xFF\xDB\x00\x43\x00", 7};
    file += std::string(64, '\x01');
    file += std::string{"\xFF\xC0\x00\x0B\x08", 5} + two(height) + two(width);
    file += std::string{"\x01\x01\x11\x00", 4};
    for (char const table : {'\x00', '\x10'}) {
        file += std::string{"\xFF\xC4\x00\x14", 4} + table + '\x01';
        file += std::string(15, '\0') + '\0';
    }
    file += std::string{"\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00", 10};
    file += std::string(std::size_t{width / 8} * (height / 8) / 4 + 1, '\0');
    return file + "\xFF\xD9";
}

long memory_peak_in_megabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

TEST_F(BrowserWindow, AnEnormousPortraitIsDecodedAtTheSizeOfTheBox) {
    put(images() / "immense.jpg", even_jpeg(20'000, 20'000));
    long const before = memory_peak_in_megabytes();
    choose_portrait("immense");
    EXPECT_EQ(session().exit_status(), std::nullopt);
    EXPECT_TRUE(box_shows(QColor{128, 128, 128}));
    // In full it would be 400 MB and more, whatever watches over the memory.
    EXPECT_LT(memory_peak_in_megabytes() - before, 200);
}

// A photograph of today's telephones takes its time to decode: once, though its size is asked
// for before it is painted.
TEST_F(BrowserWindow, APortraitIsDecodedOnce) {
    write_picture("zoe.jpg", "jpg", plain(2000, 2000, Qt::red));
    desktop::Pictures pictures;
    auto const file = images() / "zoe.jpg";
    auto const written = std::filesystem::last_write_time(file);
    EXPECT_EQ(pictures.file_size(QString::fromStdString(file.string())), QSize(2000, 2000));
    write_picture("zoe.jpg", "jpg", plain(2000, 2000, Qt::blue));
    std::filesystem::last_write_time(file, written);
    QImage box = plain(130, 130, Qt::white);
    QPainter painter{&box};
    pictures.draw_file(painter,
                       {.path = file.string(), .x = 0, .y = 0, .width = 130, .height = 130}, 1);
    EXPECT_GT(box.pixelColor(65, 65).red(), 240);
    // What the glance is too small for, the paper above all, is decoded as it is.
    pictures.draw_file(painter,
                       {.path = file.string(), .x = 0, .y = 0, .width = 130, .height = 130}, 8);
    EXPECT_GT(box.pixelColor(65, 65).blue(), 240);
}

// A portrait replaced on the disk under its own name is the new one from then on.
TEST_F(BrowserWindow, APortraitReplacedUnderItsNameIsShownAnew) {
    write_picture("zoe.jpg", "jpg", plain(100, 100, Qt::red));
    choose_portrait("zoe");
    EXPECT_TRUE(box_shows(Qt::red));
    write_picture("zoe.jpg", "jpg", plain(100, 100, Qt::blue));
    choose_portrait("zoe");
    EXPECT_TRUE(box_shows(Qt::blue));
}

TEST_F(BrowserWindow, AFileDroppedOnThePortraitIsTaken) {
    auto const file = session().program().application_folder / "ailleurs" / "photo.jpg";
    std::filesystem::create_directories(file.parent_path());
    ASSERT_TRUE(plain(100, 100, Qt::red).save(QString::fromStdString(file.string()), "jpg"));
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
    auto& box = widget(form().Picture_PHOTO);
    QDragEnterEvent enters{box.rect().center(), Qt::CopyAction, &dropped, Qt::LeftButton,
                           Qt::NoModifier};
    QApplication::sendEvent(&box, &enters);
    EXPECT_TRUE(enters.isAccepted());
    QDropEvent drop{QPointF{box.rect().center()}, Qt::CopyAction, &dropped, Qt::LeftButton,
                    Qt::NoModifier};
    QApplication::sendEvent(&box, &drop);
    EXPECT_TRUE(box_shows(Qt::red));
    EXPECT_TRUE(std::filesystem::exists(images() / "photo.jpg"));
    EXPECT_EQ(form().Command_Disk_Vert.Picture.get().name(), "Diskette(1)");
}

TEST_F(BrowserWindow, AWebAddressDroppedOnThePortraitIsNoFile) {
    QMimeData dropped;
    dropped.setUrls({QUrl{QStringLiteral("https://www.navarun.example/photo.jpg")}});
    auto& box = widget(form().Picture_PHOTO);
    QDropEvent drop{QPointF{box.rect().center()}, Qt::CopyAction, &dropped, Qt::LeftButton,
                    Qt::NoModifier};
    QApplication::sendEvent(&box, &drop);
    EXPECT_EQ(form().Picture_PHOTO.Picture.get().name(), "Image_Ganesha");
}

TEST_F(BrowserWindow, TheAddressPanelListsAndItsTooltipTellsTheAddress) {
    click(form().Bouton_Internet);
    auto& view = dynamic_cast<QListView&>(widget(form().List_Internet));
    ASSERT_EQ(view.model()->rowCount(), 10);
    EXPECT_EQ(QApplication::focusWidget(), &widget(form().Text_New_URL));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(view.model()->index(3, 0)).center());
    EXPECT_EQ(form().List_Internet.selected(), "www.larousse.fr");
    EXPECT_TRUE(view.toolTip().contains("www.larousse.fr"));
    click(form().Text_New_URL);
    type("www.essai.example");
    click(form().Command_Disk_Vert);
    EXPECT_EQ(view.model()->rowCount(), 11);
}

}  // namespace

}  // namespace navarun::test
