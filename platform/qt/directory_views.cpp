#include "platform/qt/directory_views.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStorageInfo>

#include <memory>

namespace quittika {

DriveView::DriveView(DriveListBox& control, QComboBox& widget) : TypedView(control, widget) {
    widget.clear();
    for (const QStorageInfo& drive : QStorageInfo::mountedVolumes()) {
        if (drive.isReady() && drive.bytesTotal() > 0 && widget.findText(drive.rootPath()) < 0) {
            widget.addItem(drive.rootPath());
        }
    }
    connect(&widget, &QComboBox::activated, this, [this](int row) {
        guarded(control_.form(), [&] { control_.Path = path_from_qt(widget_.itemText(row)); });
    });
}

void DriveView::push(PropertyId id) {
    if (id == PropertyId::Path) {
        widget_.setCurrentIndex(widget_.findText(path_to_qt(control_.Path())));
    }
}

DirectoryView::DirectoryView(DirListBox& control, QTreeView& widget) : TypedView(control, widget) {
    model_.setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    model_.setRootPath(QString());
    const std::unique_ptr<QItemSelectionModel> former(widget.selectionModel());
    widget.setModel(&model_);
    widget.setHeaderHidden(true);
    for (int column = 1; column < model_.columnCount(); ++column) {
        widget.hideColumn(column);
    }
    connect(widget.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (!pushing_ && index.isValid()) {
                    guarded(control_.form(), [&] { control_.Path = path_from_qt(model_.filePath(index)); });
                }
            });
}

void DirectoryView::push(PropertyId id) {
    const QModelIndex index = model_.index(path_to_qt(control_.Path()));
    if (id != PropertyId::Path || control_.Path().empty() || index == widget_.currentIndex()) {
        return;
    }
    const Pushing here(pushing_);
    widget_.setCurrentIndex(index);
    widget_.expand(index);
    widget_.scrollTo(index);
}

} // namespace quittika
