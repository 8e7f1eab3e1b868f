#include "platform/qt/widgets/amount_field.hpp"

#include <QEvent>

namespace quittika {

AmountField::AmountField(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setReadOnly(true);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    clear_ground();
}

QSize AmountField::sizeHint() const {
    const QSize text = fontMetrics().size(Qt::TextSingleLine, QStringLiteral("-99999,99"));
    return {text.width() + 8, text.height() + 2};
}

void AmountField::clear_ground() {
    QPalette clear = palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    setPalette(clear);
}

void AmountField::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    // A palette that was taken back leaves the field without a ground again.
    if (event->type() == QEvent::PaletteChange && !testAttribute(Qt::WA_SetPalette)) {
        clear_ground();
    }
}

} // namespace quittika
