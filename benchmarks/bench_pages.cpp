// How long the page takes: to be composed, drawn in the preview, made a document. Beside each
// the floor of the same run: writing the same texts and strokes into a vector, filling the same
// pixels, drawing the same texts with nothing looked up.
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "benchmarks/ratios.h"
#include "benchmarks/scratch_folder.h"
#include "print/report.h"
#include "tools/pilote/pilot.h"

#ifdef NAVARUN_DESKTOP
#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include "desktop/page_painter.h"
#endif

namespace navarun {

namespace {

// A person with ten lines of notes, marks and the palace: the fullest page.
class Practice {
  public:
    Practice() {
        program = std::make_unique<Program>(platform, folder.path());
        platform.set_user(program->user);
        platform.set_clock(*date_of(21, 11, 2026), 36900);
        program->start();
        program->event([&](screen::User& user) {
            user.type(program->form1.Combo_jourNaiss, "17051962");
            std::string note;
            while (note.size() < 1200) note += "une consultation à revoir avant l'été ";
            user.set_text(program->form1.Text_Note, note);
            user.set_position(program->form1.HScroll_age, 20);
            user.click(program->form1.Command2);
            user.click(program->form1.MnuApercu_Impression);
        });
        platform.take_pages();
    }

    screen::Page page(double ratio) { return *PrintRoutine(*program, ratio); }

    ScratchFolder folder;
    pilot::ScriptedPlatform platform;
    std::unique_ptr<Program> program;
};

Practice& practice() {
    static Practice only;
    return only;
}

void floor_of_a_page(benchmark::State& state) {
    auto const page = practice().page(1);
    for (auto _ : state) {
        screen::Page copy;
        for (auto const& operation : page.operations) copy.operations.push_back(operation);
        benchmark::DoNotOptimize(copy.operations.data());
    }
}
BENCHMARK(floor_of_a_page)->Unit(benchmark::kMicrosecond);

void a_page_composed(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(practice().page(1));
}
BENCHMARK(a_page_composed)->Unit(benchmark::kMicrosecond);

#ifdef NAVARUN_DESKTOP

constexpr double preview_ratio = 5100.0 / 11906;
constexpr double preview_inch = 340.0 * 1440 / 11906;

QImage preview_image(benchmark::State const& state) {
    auto const pixels = static_cast<int>(state.range(0));
    QImage image{QSize{340, 481} * pixels, QImage::Format_RGB32};
    image.setDevicePixelRatio(pixels);
    return image;
}

// The white paper and the texts alone, laid out before.
void floor_of_a_preview(benchmark::State& state) {
    auto const page = practice().page(preview_ratio);
    QImage image = preview_image(state);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter{&image};
        for (auto const& operation : page.operations) {
            auto const* const text = std::get_if<screen::PageText>(&operation);
            if (text == nullptr) continue;
            QFont font;
            font.setPixelSize(7);
            painter.setFont(font);
            painter.drawText(QPointF{text->x * preview_inch, text->y * preview_inch + 7},
                             QString::fromStdString(text->text));
        }
    }
}
BENCHMARK(floor_of_a_preview)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void a_preview_redrawn(benchmark::State& state) {
    desktop::Pictures pictures;
    QImage image = preview_image(state);
    for (auto _ : state) {
        auto const page = practice().page(preview_ratio);
        image.fill(Qt::white);
        QPainter painter{&image};
        desktop::paint_page(painter, pictures, page, preview_inch, desktop::PageDevice::screen);
    }
}
BENCHMARK(a_preview_redrawn)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// A document with the same faces and one text of each.
void floor_of_a_document(benchmark::State& state) {
    for (auto _ : state) {
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        QPdfWriter writer{&bytes};
        writer.setResolution(desktop::page_text_units);
        QPainter painter{&writer};
        int y = 1000;
        for (char const* family : {"Arial", "Arial Narrow"}) {
            for (bool const bold : {false, true}) {
                QFont font{QLatin1String{family}};
                font.setPixelSize(230);
                font.setBold(bold);
                painter.setFont(font);
                painter.drawText(1000, y += 300, QStringLiteral("Naissance"));
            }
        }
    }
}
BENCHMARK(floor_of_a_document)->Unit(benchmark::kMillisecond);

void a_document_of_a_page(benchmark::State& state) {
    desktop::Pictures pictures;
    for (auto _ : state) {
        auto const page = practice().page(1);
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        QPdfWriter writer{&bytes};
        writer.setResolution(desktop::page_text_units);
        QPainter painter{&writer};
        desktop::paint_page(painter, pictures, page, desktop::page_text_units,
                            desktop::PageDevice::paper);
    }
}
BENCHMARK(a_document_of_a_page)->Unit(benchmark::kMillisecond);

#endif

}  // namespace

}  // namespace navarun

int main(int argc, char** argv) {
#ifdef NAVARUN_DESKTOP
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application{argc, argv};
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Arial Narrow"),
                              QStringLiteral("Liberation Sans Narrow"));
#endif
    benchmark::Initialize(&argc, argv);
    navarun::Ratios reporter{{{"a page composed", "a_page_composed", "floor_of_a_page"},
                              {"a preview redrawn", "a_preview_redrawn", "floor_of_a_preview"},
                              {"a page to PDF", "a_document_of_a_page", "floor_of_a_document"}},
                             navarun::TimeOf::processor};
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
