// Printing through the toolkit.
#include "desktop/printer.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <cmath>

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
    QPainter painter;
    if (!painter.begin(m_chosen.get())) return;
    bool first = true;
    for (auto const& page : pages) {
        if (!std::exchange(first, false) && !m_chosen->newPage()) return;
        paint_page(painter, pictures, page, m_chosen->resolution(), PageDevice::paper);
    }
}

}  // namespace navarun::desktop
