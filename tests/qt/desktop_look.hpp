#pragma once

#include "platform/qt/widgets/theme.hpp"

#include <QApplication>
#include <QFont>
#include <QPalette>

namespace quittika::test {

inline QPalette dark_palette() {
    return {QColor(49, 54, 59), QColor(42, 46, 50)};
}

/// A desktop with another size of text or other colours, for as long as this lives.
class DesktopLook {
public:
    explicit DesktopLook(double points, const QPalette& palette = QApplication::palette())
        : DesktopLook(of_size(points), palette) {}
    DesktopLook(const QFont& font, const QPalette& palette)
        : font_(QApplication::font()), palette_(QApplication::palette()) {
        apply(font, palette);
    }
    DesktopLook(const DesktopLook&) = delete;
    DesktopLook& operator=(const DesktopLook&) = delete;
    ~DesktopLook() { apply(font_, palette_); }

private:
    static QFont of_size(double points) {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        return font;
    }
    static void apply(const QFont& font, const QPalette& palette) {
        QApplication::setFont(font);
        QApplication::setPalette(palette);
        theme::apply(*qApp);
    }

    QFont font_;
    QPalette palette_;
};

} // namespace quittika::test
