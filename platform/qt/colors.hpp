#pragma once

#include "platform/forms/property.hpp"

#include <QColor>
#include <QPalette>

class QWidget;

namespace quittika {

/// 0x00BBGGRR to the toolkit's colour and back; the transparency is dropped.
QColor to_qt(Color color);
Color from_qt(const QColor& color);

/// Puts a control's colours on its widget. A negative colour is the desktop's own; text on a given ground
/// is then black or white, whichever can be read, and black text on the desktop's own ground is its own too.
/// Among the dark fields of a dark desktop light buttons and fields are only tinged, so that they do not
/// blind.
class WidgetColors {
public:
    /// `owner`: a control or a form. `otherwise`: the ground of one that has none of its own.
    template <class Owner>
    void push(QWidget& widget, const Owner& owner, Color otherwise = color::kButtonFace) {
        const Color back = owner.BackColor() < 0 ? otherwise : owner.BackColor();
        apply(widget, owner.OwnLook() ? color::kButtonFace : back,
              owner.OwnLook() ? color::kWindowText : owner.ForeColor());
    }
    /// A ground for what has no owner.
    void push(QWidget& widget, Color back) { apply(widget, back, color::kWindowText); }

private:
    void apply(QWidget& widget, Color back, Color fore);
    void remember(const QWidget& widget);
    void restore(QWidget& widget) const;

    bool given_ = false;       ///< colours have been put on the widget
    bool had_palette_ = false; ///< the widget had a palette of its own before
    bool had_fill_ = false;
    QPalette before_;
};

} // namespace quittika
