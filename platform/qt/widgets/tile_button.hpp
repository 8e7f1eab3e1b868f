#pragma once

#include <QToolButton>

namespace quittika {

/// A flat button with its icon over its text, which is shortened where room is scarce. Only a palette of its
/// own gives it a ground, in the palette's Button and ButtonText colours. The icon is one for light ground;
/// on dark ground it is shown lighter.
class TileButton : public QToolButton {
    Q_OBJECT
public:
    explicit TileButton(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor ground() const;
};

} // namespace quittika
