#include "platform/qt/widgets/theme.hpp"

#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/tint.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <utility>

namespace quittika::theme {

namespace {

constexpr double kSmallestFont = 9.0;
constexpr double kLargestFont = 24.0;
constexpr double kDesignFont = 13.4; ///< pixels; the windows are designed for this size

struct RoleColor {
    QPalette::ColorRole role;
    QRgb color;
};

constexpr RoleColor kLight[] = {
    {QPalette::Window, 0xffe9edf1},      {QPalette::WindowText, 0xff1d2733},
    {QPalette::Base, 0xffffffff},        {QPalette::AlternateBase, 0xfff4f7fa},
    {QPalette::Text, 0xff1d2733},        {QPalette::Button, 0xfff3f5f8},
    {QPalette::ButtonText, 0xff1d2733},  {QPalette::ToolTipBase, 0xfffffdf2},
    {QPalette::ToolTipText, 0xff1d2733}, {QPalette::PlaceholderText, 0xff66727f},
    {QPalette::Highlight, 0xff2b6fb0},   {QPalette::HighlightedText, 0xffffffff},
    {QPalette::Light, 0xffffffff},       {QPalette::Midlight, 0xffdfe4ea},
    {QPalette::Mid, 0xffb9c2cc},         {QPalette::Dark, 0xff93a0ad},
};

constexpr RoleColor kLightDisabled[] = {
    {QPalette::WindowText, 0xff737e8a}, {QPalette::Text, 0xff737e8a},
    {QPalette::ButtonText, 0xff737e8a}, {QPalette::Base, 0xffeef1f4},
    {QPalette::Highlight, 0xffb9c2cc},  {QPalette::HighlightedText, 0xff4b5661},
};

bool is_dark(const QColor& color) {
    constexpr int kMiddle = 128;
    return color.lightness() < kMiddle;
}

/// Entries of a menu bar in the text colour of the window that they stand on, and tabs with their pages on
/// its ground, whatever its colour; ticks and icons as large as the text asks for; the focus to be seen on
/// lists, long texts, scroll bars and sliders.
class ProgramStyle : public QProxyStyle {
public:
    /// `scale`: of ticks and icons.
    explicit ProgramStyle(double scale) : QProxyStyle(QStringLiteral("fusion")), scale_(scale) {}

    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        if (qobject_cast<QAbstractScrollArea*>(widget) != nullptr) {
            widget->installEventFilter(this);
        }
    }
    using QProxyStyle::polish;

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int size = QProxyStyle::pixelMetric(metric, option, widget);
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
        case PM_ButtonIconSize:
        case PM_SmallIconSize:
        case PM_ScrollBarExtent:
            return qRound(size * scale_);
        default:
            return size;
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        if (type == CT_PushButton && option != nullptr) { // the style leaves hardly any room beside the text
            size.setWidth(
                std::max(size.width(), contents.width() + 2 * option->fontMetrics.averageCharWidth()));
        }
        return size;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const QPalette& palette = option->palette;
        if (element == PE_FrameTabWidget) {
            draw_page(*option, *painter);
            return;
        }
        if (element == PE_FrameGroupBox) { // the style's own shades the ground
            constexpr double kRadius = 4.0;
            constexpr int kGap = 3; ///< between title and frame
            const int title = option->fontMetrics.height() + kGap;
            outline(*painter, option->rect.adjusted(0, title, 0, 0), line_color(palette), kRadius);
            return;
        }
        if (element >= PE_IndicatorArrowDown && element <= PE_IndicatorArrowUp &&
            qobject_cast<const QToolButton*>(widget) != nullptr) {
            QStyleOption own(*option);
            own.palette = arrow_palette(own.palette);
            QProxyStyle::drawPrimitive(element, &own, painter, widget);
            return;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool has_focus = option->state.testFlag(State_HasFocus);
        if (element == PE_Frame) {
            draw_outermost(*painter, option->rect, line_color(palette));
        }
        if (element == PE_Frame && has_focus && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
            outline(*painter, option->rect, focus_color(palette.color(QPalette::Base)), 0);
        } else if (element == PE_FrameFocusRect) {
            draw_focus(*option, *painter, widget);
        } else if (is_dark(palette.color(QPalette::Window))) {
            draw_dark_outline(element, *option, *painter, widget);
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
            control == CC_ScrollBar && slider != nullptr) {
            QStyleOptionSlider own(*slider);
            own.palette = arrow_palette(own.palette);
            QProxyStyle::drawComplexControl(control, &own, painter, widget);
            draw_dark_outline(SC_ScrollBarSlider, control, *slider, *painter, widget);
        } else if (control == CC_Slider && slider != nullptr) {
            draw_slider(*slider, *painter, widget);
        } else {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
        }
        if ((control == CC_ScrollBar || control == CC_Slider) && option->state.testFlag(State_HasFocus)) {
            outline(*painter, option->rect, focus_color(option->palette.color(QPalette::Window)), 0);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_TabBarTabShape) {
            draw_tab(*option, *painter);
            return;
        }
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (element == CE_PushButtonLabel && button != nullptr) {
            QStyleOptionButton own(*button);
            own.icon = icon_on(button->icon, button->palette.color(QPalette::Button));
            QProxyStyle::drawControl(element, &own, painter, widget);
            return;
        }
        const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (element != CE_MenuBarItem || entry == nullptr) {
            return QProxyStyle::drawControl(element, option, painter, widget);
        }
        QStyleOptionMenuItem own(*entry);
        own.palette.setBrush(QPalette::ButtonText, own.palette.windowText());
        QProxyStyle::drawControl(element, &own, painter, widget);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
            static_cast<QWidget*>(watched)->update(); // a scroll area by itself updates its inside only
        }
        return QProxyStyle::eventFilter(watched, event);
    }

private:
    static void outline(QPainter& painter, const QRect& rect, const QColor& color, double radius) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, radius > 0);
        painter.setPen(color);
        painter.setBrush(Qt::NoBrush);
        const double shift = radius > 0 ? 0.5 : 0.0;
        painter.drawRoundedRect(QRectF(rect).adjusted(shift, shift, shift - 1, shift - 1), radius, radius);
        painter.restore();
        if (radius == 0) {
            draw_outermost(painter, rect, color);
        }
    }

    /// Between two whole scales lines may fall outside, or under what stands in the frame; its outermost
    /// pixels do neither.
    static void draw_outermost(QPainter& painter, const QRect& rect, const QColor& color) {
        const double scale = painter.deviceTransform().m11();
        if (scale == std::round(scale)) {
            return;
        }
        const double pixel = 1 / scale;
        const QRectF whole(rect);
        painter.fillRect(QRectF(whole.left(), whole.top(), whole.width(), pixel), color);
        painter.fillRect(QRectF(whole.left(), whole.bottom() - pixel, whole.width(), pixel), color);
        painter.fillRect(QRectF(whole.left(), whole.top(), pixel, whole.height()), color);
        painter.fillRect(QRectF(whole.right() - pixel, whole.top(), pixel, whole.height()), color);
    }

    /// The style draws arrows on buttons in the text colour of the window, which may be that of the buttons.
    static QPalette arrow_palette(QPalette palette) {
        const QColor button = palette.color(QPalette::Button);
        if (contrast(palette.color(QPalette::WindowText), button) < kTextContrast) {
            palette.setBrush(QPalette::WindowText, palette.buttonText());
            palette.setColor(QPalette::Window, button);
        }
        return palette;
    }

    static QColor line_color(const QPalette& palette) {
        constexpr double kShare = 0.3;
        return mix(palette.color(QPalette::WindowText), palette.color(QPalette::Window), kShare);
    }

    /// Pages and tabs have the ground of the window, in which their text can be read.
    static void draw_page(const QStyleOption& option, QPainter& painter) {
        painter.fillRect(option.rect, option.palette.window());
        outline(painter, option.rect, line_color(option.palette), 0);
    }

    static void draw_tab(const QStyleOption& option, QPainter& painter) {
        painter.fillRect(option.rect, option.palette.window());
        if (option.state.testFlag(State_Selected)) {
            outline(painter, option.rect, focus_color(option.palette.color(QPalette::Window)), 0);
        } else {
            outline(painter, option.rect, line_color(option.palette), 0);
        }
    }

    /// The style shows the focus in its accent alone, which a coloured ground may swallow.
    static void draw_focus(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
        constexpr double kRadius = 2.0;
        const QColor ground = option.palette.color(QPalette::Window);
        const bool in_list = qobject_cast<const QAbstractItemView*>(widget) != nullptr;
        if (is_dark(ground) || (!in_list && focus_color(ground) != accent())) {
            outline(painter, option.rect, focus_color(ground), kRadius);
        }
    }

    /// The style's own outlines are darker than the ground, which nobody sees on a dark one.
    static void draw_dark_outline(PrimitiveElement element, const QStyleOption& option, QPainter& painter,
                                  const QWidget* widget) {
        constexpr double kShare = 0.4;
        constexpr double kFieldShare = 0.2;
        constexpr double kRadius = 2.0;
        const QColor text = option.palette.color(QPalette::WindowText);
        const QColor ground = option.palette.color(QPalette::Base);
        if (element == PE_IndicatorCheckBox) {
            outline(painter, option.rect, mix(text, ground, kShare), kRadius);
        } else if (element == PE_IndicatorRadioButton) {
            outline(painter, option.rect, mix(text, ground, kShare), option.rect.width() / 2.0);
        } else if (element == PE_FrameLineEdit ||
                   (element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr)) {
            const bool has_focus = option.state.testFlag(State_HasFocus);
            outline(painter, option.rect, has_focus ? focus_color(ground) : mix(text, ground, kFieldShare),
                    kRadius);
        }
    }

    /// The handle stands on the outlined groove.
    void draw_slider(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget) const {
        QStyleOptionSlider part(option);
        part.subControls.setFlag(SC_SliderHandle, false);
        QProxyStyle::drawComplexControl(CC_Slider, &part, &painter, widget);
        draw_dark_outline(SC_SliderGroove, CC_Slider, option, painter, widget);
        part.subControls = option.subControls & SC_SliderHandle;
        QProxyStyle::drawComplexControl(CC_Slider, &part, &painter, widget);
        draw_dark_outline(SC_SliderHandle, CC_Slider, option, painter, widget);
    }

    /// Outlines a part of a slider or scroll bar, which on a dark ground is as dark as what is around it.
    void draw_dark_outline(SubControl part, ComplexControl control, const QStyleOptionSlider& option,
                           QPainter& painter, const QWidget* widget) const {
        constexpr double kShare = 0.5;
        constexpr double kGrooveShare = 0.3;
        constexpr double kRadius = 2.0;
        const QColor ground = option.palette.color(QPalette::Window);
        if (is_dark(ground)) {
            outline(painter, subControlRect(control, &option, part, widget),
                    mix(option.palette.color(QPalette::WindowText), ground,
                        part == SC_SliderGroove ? kGrooveShare : kShare),
                    kRadius);
        }
    }

    double scale_;
};

void set_light(QPalette& palette) {
    for (const RoleColor& entry : kLight) {
        palette.setColor(entry.role, QColor(entry.color));
    }
    for (const RoleColor& entry : kLightDisabled) {
        palette.setColor(QPalette::Disabled, entry.role, QColor(entry.color));
    }
}

/// Disabled text of a dark desktop's own palette may be too faint to be read, above all on groups and
/// buttons, which are lighter than their colour says.
void soften_disabled(QPalette& palette) {
    constexpr double kShare = 0.55;
    constexpr int kLighter = 160;
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText,
                     readable_on(palette.color(QPalette::Disabled, QPalette::Highlight)));
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> kTexts[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button}};
    for (const auto& [text, ground] : kTexts) {
        const QColor under = palette.color(QPalette::Disabled, ground).lighter(kLighter);
        if (contrast(palette.color(QPalette::Disabled, text), under) < kDisabledContrast) {
            palette.setColor(QPalette::Disabled, text,
                             soft(palette.color(QPalette::Active, text), under, kShare, kDisabledContrast));
        }
    }
}

QPalette program_palette(QPalette palette) {
    if (is_dark(palette.color(QPalette::Window))) {
        palette.setColor(QPalette::Highlight, accent());
        palette.setColor(QPalette::HighlightedText, Qt::white);
        soften_disabled(palette);
        return palette;
    }
    set_light(palette);
    return palette;
}

} // namespace

QColor accent() {
    return QColor(0x2b, 0x6f, 0xb0);
}

void apply(QApplication& application) {
    QFont font = QApplication::font();
    font.setPointSizeF(std::clamp(font.pointSizeF(), kSmallestFont, kLargestFont));
    QApplication::setFont(font);
    QApplication::setStyle(new ProgramStyle(scale())); // taken over by the application
    QApplication::setPalette(program_palette(QApplication::palette()));
    application.setWindowIcon(QIcon(QStringLiteral(":/icons/quittika.png")));
}

QColor focus_color(const QColor& ground) {
    constexpr int kLighter = 140;
    const QColor text = readable_on(ground);
    const QColor color = text == QColor(Qt::white) ? accent().lighter(kLighter) : accent();
    return contrast(color, ground) >= kDisabledContrast ? color : text;
}

void set_ground(QPalette& palette, const QColor& ground) {
    struct Line {
        QPalette::ColorRole role;
        double share; ///< of the text's colour
    };
    constexpr Line kLines[] = {
        {QPalette::Light, 0.0}, {QPalette::Midlight, 0.12}, {QPalette::Mid, 0.3}, {QPalette::Dark, 0.45}};
    const QColor text = readable_on(ground);
    palette.setColor(QPalette::Window, ground);
    set_text(palette, {QPalette::WindowText}, text, ground);
    for (const Line& line : kLines) {
        palette.setColor(line.role, mix(text, ground, line.share));
    }
}

QPalette painted(const QColor& window) {
    QPalette palette;
    set_light(palette);
    set_ground(palette, window);
    return palette;
}

bool dark() {
    return is_dark(QApplication::palette().color(QPalette::Window));
}

double scale() {
    return std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / kDesignFont);
}

int scaled(int pixels) {
    return qRound(pixels * scale());
}

QColor mix(const QColor& a, const QColor& b, double share) {
    const auto blend = [share](int of_a, int of_b) { return qRound(of_a * share + of_b * (1.0 - share)); };
    return QColor(blend(a.red(), b.red()), blend(a.green(), b.green()), blend(a.blue(), b.blue()));
}

} // namespace quittika::theme
