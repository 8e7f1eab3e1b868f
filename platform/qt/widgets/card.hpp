#pragma once

#include <QGroupBox>

namespace quittika {

/// A titled group of fields on a plain panel of its own.
/// It paints its panel itself: a given palette's Window colour, else one a shade above the window's.
/// Leave autoFillBackground off, it would square the corners.
class Card : public QGroupBox {
    Q_OBJECT
public:
    explicit Card(QWidget* parent = nullptr);

    /// Colour of a panel on a window of that colour.
    static QColor panel_on(const QColor& window);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QFont title_font() const;
    QColor panel_color() const;
};

} // namespace quittika
