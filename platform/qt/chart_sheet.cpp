#include "platform/qt/chart_sheet.hpp"

#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/chart_drawing.hpp"
#include "platform/qt/print_paper.hpp"
#include "platform/qt/qt_text.hpp"

#include <QBuffer>
#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

namespace quittika {

namespace {

// The sheet is laid out in points.
constexpr double kPoint = 72;
constexpr double kWidth = 595;
constexpr double kHeight = 842;
constexpr double kMargin = 43;
constexpr double kHeading = 30;
constexpr double kGap = 12;

QFont sheet_font(int size) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(size);
    return font;
}

void draw_chart(QPainter& painter, const QRectF& place, const Chart& control) {
    constexpr int kSize = 9;
    QGraphicsScene scene;
    auto* chart = new QChart; // the scene takes care of it
    scene.addItem(chart);
    chart->resize(place.size());
    ChartDrawing drawing(control, *chart);
    drawing.fill();
    drawing.dress(sheet_font(kSize), Qt::black, Qt::white);
    chart->layout()->activate();
    drawing.name_categories();
    chart->layout()->activate();
    scene.setSceneRect(chart->rect());
    scene.render(&painter, place, chart->rect());
}

void draw_sheet(QPainter& painter, const ChartSheet& sheet) {
    constexpr int kHeadingSize = 14;
    constexpr int kRemarkSize = 9;
    const QRectF inner(kMargin, kMargin, kWidth - 2 * kMargin, kHeight - 2 * kMargin);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    painter.setFont(sheet_font(kHeadingSize));
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, to_qt(sheet.title));
    painter.setFont(sheet_font(kRemarkSize));
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, lines_to_qt(sheet.remark));
    const auto count = static_cast<double>(sheet.charts.size());
    const double height = (inner.height() - 2 * kHeading) / count;
    double top = inner.top() + kHeading;
    for (const Chart* chart : sheet.charts) {
        draw_chart(painter, {inner.left(), top, inner.width(), height - kGap}, *chart);
        top += height;
    }
}

void begin(QPainter& painter, QPaintDevice& device, int dpi) {
    if (!painter.begin(&device)) {
        throw Laufzeitfehler(fehler::kSpeicher);
    }
    painter.scale(dpi / kPoint, dpi / kPoint);
}

void write_pdf(QIODevice& target, const ChartSheet& sheet) {
    constexpr int kDpi = 1200;
    QPdfWriter writer(&target);
    writer.setResolution(kDpi);
    writer.setPageLayout(page_layout({}));
    writer.setTitle(to_qt(sheet.title));
    writer.setCreator(QStringLiteral("Quittika 2008"));
    QPainter painter;
    begin(painter, writer, kDpi);
    draw_sheet(painter, sheet);
}

void write_png(QIODevice& target, const ChartSheet& sheet) {
    constexpr int kDpi = 216;
    QImage image((QSizeF(kWidth, kHeight) * (kDpi / kPoint)).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter;
        begin(painter, image, kDpi);
        draw_sheet(painter, sheet);
    }
    if (!image.save(&target, "png")) {
        throw Laufzeitfehler(fehler::kSpeicher);
    }
}

} // namespace

void save_charts(const ChartSheet& sheet, const std::string& path) {
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    if (to_qt(path).endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) {
        write_pdf(content, sheet);
    } else {
        write_png(content, sheet);
    }
    const QByteArray& bytes = content.data();
    datei_ersetzen(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace quittika
