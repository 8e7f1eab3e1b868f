#pragma once

#include "platform/qt/widget_view.hpp"

class QLabel;

namespace quittika {

/// Frames, shapes and lines. A frame's caption is the title of a group box; in any other widget it stands on
/// a line of its own above what the frame holds.
class FrameView final : public TypedView<Control, QWidget> {
public:
    using TypedView::TypedView;

protected:
    void push(PropertyId id) override;
    Clicks clicks() const override { return Clicks::Taken; }
    Color ground() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show_caption(const QString& caption);
    void place_line();

    QLabel* line_ = nullptr; ///< owned by the widget
    int room_ = 0;           ///< pixels that the line has taken from the layout
};

} // namespace quittika
