// Printing through the toolkit.
#include "desktop/printer.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QTemporaryFile>
#include <cmath>
#include <utility>

#include "desktop/page_painter.h"

namespace navarun::desktop {

namespace {

constexpr double millimetres_per_inch = 25.4;

double inches_in_whole_twips(double millimetres) {
    return std::round(millimetres / millimetres_per_inch * screen::twips_per_inch) /
           screen::twips_per_inch;
}

screen::PageSize paper_of(QPageLayout const& layout) {
    QSizeF const size = layout.fullRect(QPageLayout::Millimeter).size();
    if (size.isEmpty()) return screen::a4;
    return {.width = inches_in_whole_twips(size.width()),
            .height = inches_in_whole_twips(size.height())};
}

std::unique_ptr<QPrinter> default_printer() {
    auto const info = QPrinterInfo::defaultPrinter();
    auto printer = info.isNull() ? std::make_unique<QPrinter>(QPrinter::HighResolution)
                                 : std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    if (info.isNull()) printer->setPageSize(QPageSize{QPageSize::A4});
    printer->setDocName(QStringLiteral("N.A.V.A.R.U.N"));
    return printer;
}

// What the printing may take beyond the document itself.
constexpr qint64 bytes_to_spare = 65536;

void paint_document(QPagedPaintDevice& device, int units,
                    std::vector<screen::Page> const& pages, Pictures& pictures) {
    QPainter painter;
    if (!painter.begin(&device)) return;
    bool first = true;
    for (auto const& page : pages) {
        if (!std::exchange(first, false) && !device.newPage()) return;
        paint_page(painter, pictures, page, units, PageDevice::paper);
    }
}

// The toolkit hands on what a full disk left of a document: whether there is room for the whole
// of it is found out before.
bool has_room_for(QPrinter const& printer, std::vector<screen::Page> const& pages,
                  Pictures& pictures) {
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer{&document};
    writer.setPageLayout(printer.pageLayout());
    writer.setResolution(page_text_units);
    paint_document(writer, page_text_units, pages, pictures);
    QString const file = printer.outputFileName();
    QString const folder = file.isEmpty() ? QDir::tempPath() : QFileInfo{file}.absolutePath();
    QTemporaryFile room{folder + QStringLiteral("/navarun-XXXXXX")};
    // Where nothing can be tried the printer tells.
    if (!room.open()) return true;
    QByteArray const content(document.size() + bytes_to_spare, ' ');
    return room.write(content) == content.size() && room.flush();
}

}  // namespace

screen::PageSize Printer::page() const {
    return paper_of(m_chosen ? m_chosen->pageLayout() : default_printer()->pageLayout());
}

bool Printer::choose(QWidget* parent) {
    // Each document begins with the system's own choice.
    m_chosen.reset();
    auto printer = default_printer();
    QPrintDialog dialog{printer.get(), parent};
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (dialog.exec() != QDialog::Accepted) return false;
    m_chosen = std::move(printer);
    return true;
}

void Printer::print(std::vector<screen::Page> const& pages, Pictures& pictures) {
    if (!m_chosen) return;
    m_chosen->setFullPage(true);
    m_chosen->setResolution(page_text_units);
    if (!has_room_for(*m_chosen, pages, pictures)) return;
    paint_document(*m_chosen, m_chosen->resolution(), pages, pictures);
}

}  // namespace navarun::desktop
