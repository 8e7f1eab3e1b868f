#pragma once

#include "platform/qt/paint_tools.hpp"
#include "platform/qt/widget_view.hpp"

#include <QPixmap>
#include <QWidget>

namespace quittika {

class Backdrop;

/// Image or picture box. A picture fills the widget as far as its proportions allow; a label whose design
/// sets `scaledContents` stretches it over the whole widget. A drawn page keeps its proportions, a
/// part of one is as large as the width of the widget makes it. On dark
/// ground an image that is drawn on white paper is shown without the paper, unless it is stretched: then it
/// stands for a part of a page. A picture box, and what its design marks `onPaper`, shows all as it will be
/// printed. A file is read when the picture comes to be seen.
class PictureView final : public TypedView<PictureControl, QWidget> {
public:
    PictureView(PictureControl& control, QWidget& widget, PaintTools& tools);

protected:
    void push(PropertyId id) override;
    void push_all() override { push(PropertyId::Picture); }
    Clicks clicks() const override { return Clicks::Taken; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What fills a room of so many of the screen's pixels; null for nothing.
    QPixmap scene(const QSize& room);
    QImage picture() const;
    /// Whether it is shown as it will be printed.
    bool on_paper() const {
        return control_.kind() == "PictureBox" || widget_.property("onPaper").toBool(); // of the design
    }
    /// Returns whether there was anything to paint.
    bool paint();

    PaintTools& tools_;
    Backdrop* tiled_; ///< a widget that wants the picture itself, in its own size; else null
    QPixmap ready_;   ///< in the screen's pixels
    QSize ready_for_; ///< the room that `ready_` was made for
};

} // namespace quittika
