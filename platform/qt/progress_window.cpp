#include "platform/qt/progress_window.hpp"

#include "platform/qt/widgets/elided_label.hpp"

#include <QApplication>
#include <QDeadlineTimer>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>
#include <QWindow>

namespace quittika {

namespace {

constexpr int kFine = 1000;     ///< steps of the bar
constexpr int kCharacters = 60; ///< that a line has room for
// In milliseconds.
constexpr int kLongestOpening = 300;
constexpr int kLook = 5;

} // namespace

ProgressWindow::ProgressWindow(const QString& text, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      detail_(new ElidedLabel(this)),
      bar_(new QProgressBar(this)),
      abort_(new QPushButton(QStringLiteral("Abbrechen"), this)) {
    setWindowTitle(QApplication::applicationName());
    setWindowModality(Qt::ApplicationModal);
    setFocusPolicy(Qt::StrongFocus); // what is typed on must not press the button
    setFocus();
    auto* heading = new QLabel(text, this);
    heading->setObjectName(QStringLiteral("Vorgang"));
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    heading->setMinimumWidth(fontMetrics().averageCharWidth() * kCharacters);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    bar_->setRange(0, kFine);
    bar_->setFormat(QStringLiteral("%p %"));
    bar_->setAccessibleName(text);
    detail_->setElideMode(Qt::ElideMiddle);
    detail_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    abort_->setObjectName(QStringLiteral("Abbrechen"));
    abort_->setAutoDefault(false);
    connect(abort_, &QPushButton::clicked, this, &ProgressWindow::reject);

    const int room = fontMetrics().height();
    abort_->setMinimumWidth(abort_->sizeHint().width() + room);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(room, room, room, room);
    column->setSpacing(room * 2 / 3);
    column->addWidget(heading);
    column->addWidget(bar_);
    auto* row = new QHBoxLayout;
    row->addWidget(detail_, 1);
    row->addWidget(abort_);
    column->addLayout(row);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void ProgressWindow::appear() {
    adjustSize(); // the size that its place is reckoned from
    show();
    const QDeadlineTimer deadline(kLongestOpening);
    while (!windowHandle()->isExposed() && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(kLook);
    }
}

void ProgressWindow::show_state(double share, const QString& detail) {
    bar_->setValue(qRound(share * kFine));
    if (!aborted_) {
        detail_->setText(detail);
    }
}

void ProgressWindow::reject() {
    aborted_ = true;
    abort_->setEnabled(false);
    detail_->setText(QStringLiteral("Wird abgebrochen..."));
}

} // namespace quittika
