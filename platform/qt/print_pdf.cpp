#include "platform/qt/print_pdf.hpp"

#include "platform/laufzeitfehler.hpp"

#include <QFile>
#include <QFileInfo>
#include <QMarginsF>
#include <QPageSize>

#include <cstdio>
#include <utility>

namespace quittika {

namespace {

constexpr int kResolution = 1200; ///< dots per inch

bool write_file(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

/// Writes beside the target first, so that a failure leaves the old file as it was.
bool replace_file(const QString& path, const QByteArray& content) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile()) {
        return write_file(path, content);
    }
    const QString fresh = path + QStringLiteral(".neu");
    if (write_file(fresh, content) &&
        std::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(path).constData()) == 0) {
        return true;
    }
    QFile::remove(fresh);
    return false;
}

} // namespace

QtPdfDevice::QtPdfDevice(const QtFontMetrics& metrics, QString path, const std::string& title)
    : PainterDevice(metrics), path_(std::move(path)) {
    content_.open(QIODevice::WriteOnly);
    writer_.setResolution(kResolution);
    writer_.setPageSize(QPageSize(QPageSize::A4));
    writer_.setPageMargins(QMarginsF());
    writer_.setTitle(QString::fromStdString(title));
    writer_.setCreator(QStringLiteral("Quittika 2008"));
    if (!begin(writer_, kResolution / 25.4)) {
        throw Laufzeitfehler(482);
    }
}

QtPdfDevice::~QtPdfDevice() {
    end();
}

void QtPdfDevice::new_page() {
    if (!writer_.newPage()) {
        throw Laufzeitfehler(482);
    }
}

void QtPdfDevice::end_document() {
    if (!end() || !replace_file(path_, content_.data())) {
        throw Laufzeitfehler(482);
    }
}

} // namespace quittika
