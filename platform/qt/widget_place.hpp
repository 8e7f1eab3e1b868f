#pragma once

#include "platform/forms/control.hpp"

#include <QObject>
#include <QPoint>

#include <string>

class QWidget;

namespace quittika {

/// Keeps a control's place and its widget's the same, as the control's `Placing` says. The control's twips
/// are exact: what the widget has to round to whole pixels never comes back.
class WidgetPlace final : public QObject {
public:
    WidgetPlace(Control& control, QWidget& widget);

    /// Puts the widget where the control says.
    void push();
    /// Twips from the control's exact place to that of its widget.
    QPoint rounding() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    void take();
    void take_size();

    Control& control_;
    QWidget& widget_;
    QWidget* area_; ///< what the place is measured in; null where the design is wrong
};

/// Gives a place or size the value that a widget has, in pixels; one that the widget shows already keeps its
/// exact twips. Returns whether it has changed.
bool take_pixels(Property<int>& property, int value);

/// What is wrong with the place that a design gives the control's widget; empty when all is right.
std::string place_finding(const Control& control, QWidget& widget);

} // namespace quittika
