#pragma once

#include "platform/qt/print_painter.hpp"

#include <QBuffer>
#include <QPdfWriter>

namespace quittika {

/// Draws a PDF. Its file appears, or is replaced, whole at the end of the document.
class QtPdfDevice final : public PainterDevice {
public:
    /// Throws `Laufzeitfehler` 482 when no document can be begun.
    QtPdfDevice(PaintTools& tools, const QString& path, const PrintDocument& document, bool grey = false);
    /// Draws a document for archives, of which `take` gets the bytes at its end.
    QtPdfDevice(PaintTools& tools, const PrintDocument& document, Printing::TakeBytes take);
    ~QtPdfDevice() override;

    void new_page() override;
    /// Begins a page of another size.
    void new_page(const Paper& paper);
    void end_document() override;

private:
    void begin_document(const PrintDocument& document);

    Printing::TakeBytes take_;
    QString author_;
    QBuffer content_;
    QPdfWriter writer_{&content_};
};

} // namespace quittika
