#pragma once

#include <QLabel>

namespace quittika {

/// A picture behind all that its parent holds, repeated over the whole surface.
/// Give it the pixmap in its own size, not scaled.
class Backdrop : public QLabel {
    Q_OBJECT
public:
    explicit Backdrop(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quittika
