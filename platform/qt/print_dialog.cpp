#include "platform/qt/print_dialog.hpp"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>

namespace quittika {

namespace {

constexpr int kShownCharacters = 60; ///< of the path

} // namespace

QString pdf_path(const QString& typed, const QString& folder) {
    QString path = typed.trimmed();
    if (path.startsWith(QLatin1String("~/"))) {
        path.replace(0, 1, QDir::homePath());
    }
    if (path.isEmpty() || path.endsWith(QLatin1Char('/'))) {
        return path; // no file; the toolkit refuses it
    }
    if (QFileInfo(path).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) != 0) {
        path += QLatin1String(".pdf");
    }
    return QDir::cleanPath(QDir(folder).absoluteFilePath(path));
}

PrintDialog::PrintDialog(QPrinter& printer, const QString& file, QWidget* parent)
    : QPrintDialog(&printer, parent),
      folder_(QFileInfo(file).absolutePath()),
      path_(findChild<QLineEdit*>(QStringLiteral("filename"))) {
    setOption(PrintPageRange, false);
    setOption(PrintSelection, false);
    setOption(PrintCollateCopies, false);
    if (path_ != nullptr) {
        path_->setText(file);
        path_->setMinimumWidth(kShownCharacters * path_->fontMetrics().averageCharWidth());
    }
    if (const auto* printers = findChild<QComboBox*>(QStringLiteral("printers"))) {
        connect(printers, &QComboBox::currentIndexChanged, this, &PrintDialog::allow_copies);
    }
    // The toolkit asks before it replaces the file that stands in the field; it must be the one that is
    // written.
    const auto* buttons = findChild<QDialogButtonBox*>();
    if (const QPushButton* print = buttons == nullptr ? nullptr : buttons->button(QDialogButtonBox::Ok)) {
        connect(print, &QPushButton::pressed, this, &PrintDialog::complete_path);
    }
}

void PrintDialog::setVisible(bool visible) {
    QPrintDialog::setVisible(visible);
    for (const char* name : {"gbPrintRange", "pageSetCombo", "pageSetLabel", "reverse"}) {
        if (auto* setting = findChild<QWidget*>(QLatin1String(name))) {
            setting->hide();
        }
    }
    allow_copies();
}

bool PrintDialog::into_file() const {
    return path_ != nullptr && path_->isEnabled();
}

void PrintDialog::allow_copies() {
    if (auto* copies = findChild<QSpinBox*>(QStringLiteral("copies"))) {
        copies->setEnabled(!into_file());
        copies->setValue(into_file() ? 1 : copies->value());
    }
}

void PrintDialog::complete_path() {
    if (into_file()) {
        path_->setText(pdf_path(path_->text(), folder_));
    }
}

} // namespace quittika
