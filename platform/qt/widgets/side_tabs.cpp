#include "platform/qt/widgets/side_tabs.hpp"

#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QTabBar>

#include <algorithm>

namespace quittika {

namespace {

constexpr int kBeside = 10; ///< free room left and right of a caption
constexpr int kAbove = 7;   ///< and above and beneath it
constexpr int kGap = 8;     ///< between captions and pages
constexpr double kRadius = 5.0;
constexpr int kRoom = 48; ///< heights of the font: least width of a window with the captions at the side

class SideTabBar : public QTabBar {
public:
    explicit SideTabBar(QWidget* parent) : QTabBar(parent) {
        setExpanding(false);
        setDrawBase(false);
        setElideMode(Qt::ElideNone);
        setMouseTracking(true);
    }

protected:
    QSize tabSizeHint(int index) const override {
        int width = text_width(index);
        for (int i = 0; at_side() && i < count(); ++i) {
            width = std::max(width, text_width(i));
        }
        const QSize room(width + 2 * kBeside, fontMetrics().height() + 2 * kAbove);
        return at_side() ? room + QSize(kGap, 0) : room + QSize(0, kGap);
    }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < count(); ++i) {
            paint_tab(painter, i);
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        const int step = event->key() == Qt::Key_Down ? 1 : event->key() == Qt::Key_Up ? -1 : 0;
        if (step == 0) {
            return QTabBar::keyPressEvent(event);
        }
        setCurrentIndex(std::clamp(currentIndex() + step, 0, count() - 1));
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        QTabBar::mouseMoveEvent(event);
        update();
    }

private:
    bool at_side() const { return shape() == RoundedWest; }
    int text_width(int index) const {
        return fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width();
    }
    QRectF place_of(int index) const {
        const QRect tab = tabRect(index);
        return QRectF(at_side() ? tab.adjusted(0, 0, -kGap, 0) : tab.adjusted(0, 0, 0, -kGap))
            .adjusted(0.5, 0.5, -0.5, -0.5);
    }

    void paint_tab(QPainter& painter, int index) const {
        constexpr double kHovered = 0.08;
        const QRectF place = place_of(index);
        const bool chosen = index == currentIndex();
        QPalette colors = palette();
        const QColor ground = colors.color(QPalette::Window);
        theme::show_selection(colors, ground, colors.color(QPalette::WindowText));
        const QColor text = colors.color(chosen ? QPalette::HighlightedText : QPalette::WindowText);
        painter.setPen(Qt::NoPen);
        if (chosen) {
            painter.setBrush(colors.color(QPalette::Highlight));
            painter.drawRoundedRect(place, kRadius, kRadius);
        } else if (underMouse() && place.contains(mapFromGlobal(QCursor::pos()))) {
            painter.setBrush(theme::mix(text, ground, kHovered));
            painter.drawRoundedRect(place, kRadius, kRadius);
        }
        if (chosen && hasFocus()) {
            constexpr double kInside = 2.0;
            painter.setPen(text);
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(place.adjusted(kInside, kInside, -kInside, -kInside), kRadius - kInside,
                                    kRadius - kInside);
        }
        painter.setPen(text);
        painter.drawText(place.adjusted(kBeside, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, tabText(index));
    }
};

} // namespace

SideTabs::SideTabs(QWidget* parent) : QTabWidget(parent) {
    setTabBar(new SideTabBar(this));
    setTabPosition(QTabWidget::West);
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
}

void SideTabs::showEvent(QShowEvent* event) {
    window()->installEventFilter(this);
    turn();
    QTabWidget::showEvent(event);
}

bool SideTabs::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window() && event->type() == QEvent::Resize) {
        turn();
    }
    return QTabWidget::eventFilter(watched, event);
}

void SideTabs::turn() {
    const bool side = window()->width() >= kRoom * fontMetrics().height();
    setTabPosition(side ? QTabWidget::West : QTabWidget::North);
}

} // namespace quittika
