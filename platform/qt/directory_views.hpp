#pragma once

#include "platform/qt/widget_view.hpp"

#include <QComboBox>
#include <QFileSystemModel>
#include <QTreeView>

#include <memory>

namespace quittika {

/// The drives that are there when the list is shown, and again when the user reaches for it.
class DriveView final : public TypedView<DriveListBox, QComboBox> {
public:
    DriveView(DriveListBox& control, QComboBox& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override { read(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void read();
};

/// The tree of directories as it is when the list is shown.
class DirectoryView final : public TypedView<DirListBox, QTreeView> {
public:
    DirectoryView(DirListBox& control, QTreeView& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override { read(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void read();

    std::unique_ptr<QFileSystemModel> model_;
    bool pushing_ = false;
};

} // namespace quittika
