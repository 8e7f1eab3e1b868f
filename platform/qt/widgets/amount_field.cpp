#include "platform/qt/widgets/amount_field.hpp"

#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QEvent>
#include <QPainter>

namespace quittika {

namespace {

constexpr const char* kWidest = "-999999999,99";
constexpr int kEdge = 2; ///< pixels that the frame of an input field takes

} // namespace

AmountField::AmountField(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setReadOnly(true);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setTextMargins(0, 0, kEdge, 0);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    clear_ground();
}

QSize AmountField::sizeHint() const {
    const QSize text = fontMetrics().size(Qt::TextSingleLine, QLatin1String(kWidest));
    return {text.width() + 8 + kEdge, text.height() + 2};
}

void AmountField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        const QColor base = palette().color(QPalette::Base);
        painter.setPen(theme::focus_color(base.alpha() == 0 ? palette().color(QPalette::Window) : base));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void AmountField::clear_ground() {
    QPalette clear;
    clear.setColor(QPalette::Base, Qt::transparent);
    const QPalette around = parentWidget() == nullptr ? QPalette() : parentWidget()->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        clear.setColor(group, QPalette::Text, around.color(group, QPalette::WindowText));
    }
    theme::show_selection(clear, around.color(QPalette::Window), around.color(QPalette::WindowText));
    setPalette(clear);
}

void AmountField::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    // A ground that was given stays; one that was taken back leaves the field without any again.
    const bool given = testAttribute(Qt::WA_SetPalette) && palette().color(QPalette::Base).alpha() > 0;
    if ((event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange) && !given) {
        clear_ground();
    }
}

} // namespace quittika
