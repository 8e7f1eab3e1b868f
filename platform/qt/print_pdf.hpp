#pragma once

#include "platform/qt/print_painter.hpp"

#include <QBuffer>
#include <QPdfWriter>

namespace quittika {

/// Draws a PDF file. The file appears, or is replaced, whole at the end of the document.
class QtPdfDevice final : public PainterDevice {
public:
    /// Throws `Laufzeitfehler` 482 when no document can be begun.
    QtPdfDevice(PaintTools& tools, QString path, const PrintDocument& document, bool grey = false);
    ~QtPdfDevice() override;

    void new_page() override;
    /// Begins a page of another size.
    void new_page(const Paper& paper);
    void end_document() override;

private:
    QString path_;
    QString author_;
    QBuffer content_;
    QPdfWriter writer_{&content_};
};

} // namespace quittika
