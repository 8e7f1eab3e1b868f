#pragma once

#include "platform/qt/widgets/theme.hpp"

#include <QApplication>
#include <QFont>
#include <QPalette>

namespace quittika::test {

/// A desktop with another size of text or other colours, for as long as this lives.
class DesktopLook {
public:
    explicit DesktopLook(double points, const QPalette& palette = QApplication::palette())
        : font_(QApplication::font()), palette_(QApplication::palette()) {
        QFont font = font_;
        font.setPointSizeF(points);
        apply(font, palette);
    }
    DesktopLook(const DesktopLook&) = delete;
    DesktopLook& operator=(const DesktopLook&) = delete;
    ~DesktopLook() { apply(font_, palette_); }

private:
    static void apply(const QFont& font, const QPalette& palette) {
        QApplication::setFont(font);
        QApplication::setPalette(palette);
        theme::apply(*qApp);
    }

    QFont font_;
    QPalette palette_;
};

} // namespace quittika::test
