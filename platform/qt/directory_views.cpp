#include "platform/qt/directory_views.hpp"

#include "platform/laufwerke.hpp"
#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"

#include <QEvent>
#include <QHeaderView>
#include <QItemSelectionModel>

#include <string>
#include <utility>

namespace quittika {

namespace {

/// Whether a widget comes to be seen because the program shows it, not because its window is uncovered.
bool is_opened(const QEvent& event) {
    return event.type() == QEvent::Show && !event.spontaneous();
}

} // namespace

DriveView::DriveView(DriveListBox& control, QComboBox& widget) : TypedView(control, widget) {
    widget.setPlaceholderText(QStringLiteral("Laufwerk wählen"));
    connect(&widget, &QComboBox::activated, this, [this](int row) {
        guarded(control_.form(), [&] {
            const std::string path = path_from_qt(widget_.itemData(row).toString());
            if (path == control_.Path()) { // chosen once more: back to where its tree begins
                control_.Change();
            } else {
                control_.Path = path;
            }
        });
    });
}

void DriveView::read() {
    widget_.clear();
    for (const Laufwerk& drive : LAUFWERKE()) {
        const QString path = path_to_qt(drive.pfad);
        widget_.addItem(QStringLiteral("%1  (%2)").arg(path_to_qt(drive.name), path), path);
    }
    push(PropertyId::Path);
}

void DriveView::push(PropertyId id) {
    if (id == PropertyId::Path) {
        widget_.setCurrentIndex(widget_.findData(path_to_qt(control_.Path())));
    }
}

bool DriveView::eventFilter(QObject* watched, QEvent* event) {
    if (is_opened(*event) || event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) {
        read();
    }
    return passes_by(*event, widget_) || TypedView::eventFilter(watched, event);
}

DirectoryView::DirectoryView(DirListBox& control, QTreeView& widget) : TypedView(control, widget) {
    widget.setHeaderHidden(true);
}

void DirectoryView::read() {
    auto model = std::make_unique<QFileSystemModel>();
    model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    model->setRootPath(QString());
    const std::unique_ptr<QItemSelectionModel> former(widget_.selectionModel());
    widget_.setModel(model.get());
    model_ = std::move(model);
    for (int column = 1; column < model_->columnCount(); ++column) {
        widget_.hideColumn(column);
    }
    connect(widget_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (!pushing_ && index.isValid()) {
                    guarded(control_.form(), [&] { control_.Path = path_from_qt(model_->filePath(index)); });
                }
            });
    connect(model_.get(), &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
        if (path_to_qt(control_.Path()).startsWith(loaded)) {
            // Its rows are sorted in a moment; only then the chosen one stands where it stays.
            connect(
                model_.get(), &QFileSystemModel::layoutChanged, this,
                [this] { widget_.scrollTo(widget_.currentIndex(), QAbstractItemView::PositionAtCenter); },
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        }
    });
    push(PropertyId::Path);
}

void DirectoryView::push(PropertyId id) {
    const QModelIndex index = model_->index(path_to_qt(control_.Path()));
    if (id != PropertyId::Path || control_.Path().empty() || index == widget_.currentIndex()) {
        return;
    }
    const Pushing here(pushing_);
    widget_.setCurrentIndex(index);
    widget_.expand(index);
    widget_.scrollTo(index, QAbstractItemView::PositionAtCenter);
}

bool DirectoryView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget_ && is_opened(*event)) {
        read();
    }
    return TypedView::eventFilter(watched, event);
}

} // namespace quittika
