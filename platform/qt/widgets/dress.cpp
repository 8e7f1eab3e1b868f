#include "platform/qt/widgets/dress.hpp"

#include "platform/qt/widgets/theme.hpp"
#include "platform/qt/widgets/tint.hpp"

#include <QAction>
#include <QFont>
#include <QIcon>
#include <QLayout>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace quittika::theme {

namespace {

int grown(int length, double factor) {
    return length <= 0 || length >= QWIDGETSIZE_MAX ? length : qRound(length * factor);
}

QSize grown(const QSize& size, double factor) {
    return {grown(size.width(), factor), grown(size.height(), factor)};
}

void grow(QWidget& widget, double factor) {
    const bool is_picture = widget.minimumSize() == widget.maximumSize();
    if (!is_picture) {
        widget.setMaximumSize(grown(widget.maximumSize(), factor));
        widget.setMinimumSize(grown(widget.minimumSize(), factor));
    }
    QFont font = widget.font();
    const bool own_size = (font.resolveMask() & QFont::SizeResolved) != 0;
    if (widget.testAttribute(Qt::WA_SetFont) && own_size && font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
        widget.setFont(font);
    }
}

/// Room that is left free between the parts of a layout.
void grow(QLayout& layout, double factor) {
    for (int i = 0; i < layout.count(); ++i) {
        QSpacerItem* gap = layout.itemAt(i)->spacerItem();
        if (gap != nullptr && gap->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed) {
            gap->changeSize(grown(gap->sizeHint().width(), factor), gap->sizeHint().height(),
                            QSizePolicy::Fixed, gap->sizePolicy().verticalPolicy());
        }
    }
}

void fit_to_text(QWidget& window) {
    const double factor = scale();
    if (factor <= 1.0) {
        return;
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        grow(*widget, factor);
    }
    for (QLayout* layout : window.findChildren<QLayout*>()) {
        grow(*layout, factor);
    }
    grow(window, factor);
    const QSize room = window.screen()->availableSize();
    window.resize((window.size() * factor).boundedTo(room));
}

} // namespace

void dress(QWidget& window) {
    fit_to_text(window);
    if (dark()) {
        for (QAction* entry : window.findChildren<QAction*>()) {
            if (!entry->icon().isNull()) {
                entry->setIcon(lighter(entry->icon()));
            }
        }
    }
}

} // namespace quittika::theme
