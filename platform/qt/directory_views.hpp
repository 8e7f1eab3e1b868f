#pragma once

#include "platform/qt/widget_view.hpp"

#include <QComboBox>
#include <QFileSystemModel>
#include <QTreeView>

namespace quittika {

/// The drives that are there when the window is built.
class DriveView final : public TypedView<DriveListBox, QComboBox> {
public:
    DriveView(DriveListBox& control, QComboBox& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override { push(PropertyId::Path); }
};

/// The tree of directories.
class DirectoryView final : public TypedView<DirListBox, QTreeView> {
public:
    DirectoryView(DirListBox& control, QTreeView& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override { push(PropertyId::Path); }

private:
    QFileSystemModel model_;
    bool pushing_ = false;
};

} // namespace quittika
