#include "platform/qt/print_pdf.hpp"

#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/pdf_author.hpp"
#include "platform/qt/print_paper.hpp"
#include "platform/qt/qt_text.hpp"

#include <utility>

namespace quittika {

QtPdfDevice::QtPdfDevice(PaintTools& tools, const QString& path, const PrintDocument& document, bool grey)
    : PainterDevice(tools),
      take_([file = path_from_qt(path)](const std::string& bytes) { datei_ersetzen(file, bytes); }),
      author_(to_qt(document.author)) {
    if (grey) {
        draw_grey();
    }
    begin_document(document);
}

QtPdfDevice::QtPdfDevice(PaintTools& tools, const PrintDocument& document, Printing::TakeBytes take)
    : PainterDevice(tools), take_(std::move(take)), author_(to_qt(document.author)) {
    writer_.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    begin_document(document);
}

void QtPdfDevice::begin_document(const PrintDocument& document) {
    content_.open(QIODevice::WriteOnly);
    writer_.setResolution(kDrawingDpi);
    writer_.setPageLayout(page_layout(document.paper));
    writer_.setTitle(to_qt(document.title));
    writer_.setCreator(QStringLiteral("Quittika 2008"));
    if (!begin(writer_, kDrawingDpi / kMmPerInch)) {
        throw Laufzeitfehler(fehler::kDrucker);
    }
}

QtPdfDevice::~QtPdfDevice() {
    end();
}

void QtPdfDevice::new_page() {
    if (!writer_.newPage()) {
        throw Laufzeitfehler(fehler::kDrucker);
    }
}

void QtPdfDevice::new_page(const Paper& paper) {
    writer_.setPageLayout(page_layout(paper));
    new_page();
}

void QtPdfDevice::end_document() {
    if (!end()) {
        throw Laufzeitfehler(fehler::kDrucker);
    }
    take_(with_author(content_.data(), author_).toStdString());
}

} // namespace quittika
