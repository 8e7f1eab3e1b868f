#include "platform/qt/plain_views.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/backdrop.hpp"
#include "platform/qt/widgets/theme.hpp"
#include "platform/qt/widgets/tint.hpp"
#include "platform/verzeichnis.hpp"

#include <QImageReader>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

namespace quittika {

namespace {

QPixmap load(const std::string& path) {
    if (path.empty()) {
        return {};
    }
    QImageReader reader(path_to_qt(systempfad(path)));
    reader.setDecideFormatFromContent(true);
    return QPixmap::fromImage(reader.read());
}

const std::string& picture_path(const Control& control) {
    const auto* box = dynamic_cast<const PictureBox*>(&control);
    return box != nullptr ? box->Picture() : static_cast<const Image&>(control).Picture();
}

} // namespace

LabelView::LabelView(Control& control, QLabel& widget) : TypedView(control, widget) {
    widget.setTextFormat(Qt::PlainText);
}

void LabelView::push(PropertyId id) {
    if (id != PropertyId::Caption) {
        return;
    }
    QString caption = lines_to_qt(control_.Caption());
    if (widget_.buddy() != nullptr) {
        caption.replace(QLatin1Char('&'), QLatin1String("&&"));
    }
    if (caption != widget_.text()) {
        widget_.setText(caption);
    }
}

PictureView::PictureView(Control& control, QWidget& widget)
    : TypedView(control, widget), tiled_(qobject_cast<Backdrop*>(&widget)) {}

void PictureView::push(PropertyId id) {
    if (id != PropertyId::Picture) {
        return;
    }
    picture_ = load(picture_path(control_));
    scaled_ = QPixmap();
    if (tiled_ != nullptr) {
        tiled_->setPixmap(picture_);
    }
    widget_.update();
}

bool PictureView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && tiled_ == nullptr && !picture_.isNull()) {
        paint();
        return true;
    }
    return WidgetView::eventFilter(watched, event);
}

void PictureView::paint() {
    QPainter painter(&widget_);
    const QRect room = widget_.contentsRect();
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize size = picture_.size().scaled(room.size() * ratio, Qt::KeepAspectRatio);
    if (size.isEmpty()) {
        return;
    }
    if (scaled_.size() != size) {
        QImage shown = picture_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).toImage();
        const bool off_paper = control_.kind() == "Image" && theme::dark() && theme::is_on_paper(shown);
        scaled_ = QPixmap::fromImage(off_paper ? theme::for_dark_ground(shown) : shown);
        scaled_.setDevicePixelRatio(ratio);
    }
    const auto* label = qobject_cast<const QLabel*>(&widget_);
    const QRect place =
        QStyle::alignedRect(widget_.layoutDirection(), label ? label->alignment() : Qt::AlignCenter,
                            (QSizeF(size) / ratio).toSize(), room);
    if (scaled_.hasAlpha() && control_.kind() == "PictureBox") {
        painter.fillRect(place, Qt::white); // what the picture will be printed on
    }
    painter.drawPixmap(place, scaled_);
}

TabView::TabView(SSTab& control, QTabWidget& widget) : TypedView(control, widget) {
    widget.tabBar()->setFocusPolicy(Qt::StrongFocus); // a click on a tab ends the entry in a field
    for (int page = 0; page < widget.count() && page < static_cast<int>(control.captions().size()); ++page) {
        widget.setTabText(page, to_qt(control.captions()[static_cast<std::size_t>(page)]));
    }
    connect(&widget, &QTabWidget::currentChanged, this, [this](int page) {
        if (page >= 0 && page != control_.Tab()) {
            guarded(control_.form(), [this, page] { control_.Tab = page; });
        }
    });
}

void TabView::push(PropertyId id) {
    if (id == PropertyId::Tab && control_.Tab() < widget_.count()) {
        widget_.setCurrentIndex(control_.Tab());
    }
}

MenuView::MenuView(Menu& control, QAction& action) : control_(control), action_(action) {
    connect(&action, &QAction::triggered, this,
            [this] { guarded(control_.form(), [this] { control_.user_click(); }); });
    for (const PropertyId id : {PropertyId::Caption, PropertyId::Enabled, PropertyId::Visible}) {
        property_changed(id);
    }
}

void MenuView::property_changed(PropertyId id) {
    switch (id) {
    case PropertyId::Caption:
        return action_.setText(to_qt(control_.Caption()));
    case PropertyId::Enabled:
        return action_.setEnabled(control_.Enabled());
    case PropertyId::Visible:
        return action_.setVisible(control_.Visible());
    case PropertyId::ToolTipText:
        return action_.setToolTip(tool_tip(control_.ToolTipText()));
    default:
        return;
    }
}

} // namespace quittika
