#pragma once

#include "platform/qt/widget_view.hpp"

#include <QAction>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

namespace quittika {

/// Labels and panels of the status bar: plain text, "&" as it stands.
class LabelView final : public TypedView<Control, QLabel> {
public:
    LabelView(Control& control, QLabel& widget);

protected:
    void push(PropertyId id) override;
    Clicks clicks() const override { return Clicks::Taken; }
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
