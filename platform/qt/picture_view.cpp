#include "platform/qt/picture_view.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_page.hpp"
#include "platform/qt/widgets/backdrop.hpp"
#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/theme.hpp"
#include "platform/qt/widgets/tint.hpp"

#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

namespace quittika {

namespace {

bool on_dark_ground(const QWidget& widget) {
    return theme::readable_on(widget.palette().color(QPalette::Window)) == QColor(Qt::white);
}

} // namespace

PictureView::PictureView(PictureControl& control, QWidget& widget, PaintTools& tools)
    : TypedView(control, widget), tools_(tools), tiled_(qobject_cast<Backdrop*>(&widget)) {}

void PictureView::push(PropertyId id) {
    if (id != PropertyId::Picture) {
        return;
    }
    ready_ = QPixmap();
    ready_for_ = QSize();
    if (tiled_ != nullptr) {
        tiled_->set_tile(picture());
    }
    widget_.update();
}

bool PictureView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        ready_for_ = QSize(); // a dark ground wants another picture
    }
    if (event->type() == QEvent::Paint && tiled_ == nullptr && paint()) {
        return true;
    }
    return WidgetView::eventFilter(watched, event);
}

QImage PictureView::picture() const {
    const std::string& path = control_.Picture();
    try {
        return path.empty() ? QImage() : tools_.pictures.image(path);
    } catch (const Laufzeitfehler&) {
        return {}; // who must know asks `Pictures::load`
    }
}

QPixmap PictureView::scene(const QSize& room) {
    if (const DrawnPage* page = control_.page().get()) {
        const QSize sheet = page->transparent ? room : sheet_size(page->paper, room);
        return QPixmap::fromImage(page_image(*page, sheet, tools_));
    }
    const QImage image = picture();
    if (image.isNull()) {
        return {};
    }
    const auto* label = qobject_cast<const QLabel*>(&widget_);
    const bool stretched = label != nullptr && label->hasScaledContents();
    const QSize size = stretched ? room : image.size().scaled(room, Qt::KeepAspectRatio);
    const QImage shown = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const bool off_paper = !on_paper() && !stretched && on_dark_ground(widget_) && theme::is_on_paper(shown);
    return QPixmap::fromImage(off_paper ? theme::for_dark_ground(shown) : shown);
}

bool PictureView::paint() {
    const double ratio = widget_.devicePixelRatioF();
    const QRect place = widget_.contentsRect();
    const QSize room = (QSizeF(place.size()) * ratio).toSize();
    const bool something = control_.page() != nullptr || !control_.Picture().empty();
    if (room.isEmpty() || !something) {
        return false;
    }
    if (ready_for_ != room) {
        ready_for_ = room;
        ready_ = scene(room);
        ready_.setDevicePixelRatio(ratio);
    }
    if (ready_.isNull()) {
        return false;
    }
    const auto* label = qobject_cast<const QLabel*>(&widget_);
    const QRect target = QStyle::alignedRect(widget_.layoutDirection(),
                                             label != nullptr ? label->alignment() : Qt::AlignCenter,
                                             ready_.deviceIndependentSize().toSize(), place);
    QPainter painter(&widget_);
    if (ready_.hasAlpha() && on_paper()) {
        painter.fillRect(target, Qt::white);
    }
    painter.drawPixmap(target.topLeft(), ready_);
    if (label != nullptr && label->hasFocus() && label->frameWidth() > 0) {
        const QColor ink = theme::focus_color(label->palette().color(QPalette::Window));
        painter.setPen(QPen(ink, 2 * label->frameWidth())); // the outer half lies outside
        painter.drawRect(label->rect());
    }
    return true;
}

} // namespace quittika
