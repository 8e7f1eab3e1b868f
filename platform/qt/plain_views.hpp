#pragma once

#include "platform/qt/widget_view.hpp"

#include <QAction>
#include <QLabel>
#include <QPixmap>
#include <QTabBar>
#include <QTabWidget>

namespace quittika {

class Backdrop;

/// Labels and panels of the status bar: plain text, "&" as it stands.
class LabelView final : public TypedView<Control, QLabel> {
public:
    LabelView(Control& control, QLabel& widget);

protected:
    void push(PropertyId id) override;
    Clicks clicks() const override { return Clicks::Taken; }
};

/// Image or picture box: the picture fills the widget as far as its proportions allow. On a dark desktop an
/// image that is drawn on white paper is shown without the paper; a picture box shows it as it is.
class PictureView final : public TypedView<Control, QWidget> {
public:
    PictureView(Control& control, QWidget& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override { push(PropertyId::Picture); }
    Clicks clicks() const override { return Clicks::Taken; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paint();

    Backdrop* tiled_; ///< a widget that wants the picture itself, in its own size; else null
    QPixmap picture_;
    QPixmap scaled_;
};

class TabView final : public TypedView<SSTab, QTabWidget> {
public:
    TabView(SSTab& control, QTabWidget& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override { push(PropertyId::Tab); }
    QWidget& surface() const override { return *widget_.tabBar(); }
};

/// A menu entry.
class MenuView final : public QObject, public ControlView {
public:
    MenuView(Menu& control, QAction& action);
    void property_changed(PropertyId id) override;

private:
    Menu& control_;
    QAction& action_;
};

} // namespace quittika
