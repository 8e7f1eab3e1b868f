#pragma once

#include "platform/qt/widget_view.hpp"

#include <QAbstractSlider>
#include <QProgressBar>

namespace quittika {

/// Scroll bars and sliders. A key or the wheel goes by a step of 1, in a wide range by 1/200 of it; a click
/// beside the handle and the page keys go by a tenth.
class RangeView final : public TypedView<RangeControl, QAbstractSlider> {
public:
    RangeView(RangeControl& control, QAbstractSlider& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool pushing_ = false;
};

class ProgressView final : public TypedView<ProgressBar, QProgressBar> {
public:
    using TypedView::TypedView;

protected:
    void push(PropertyId id) override;
    void push_all() override;
};

} // namespace quittika
