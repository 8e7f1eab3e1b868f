#pragma once

#include <QLabel>

namespace quittika {

/// A picture behind all that its parent holds, repeated over the whole surface, a pixel of it on one of the
/// screen. While it is seen, the parent's texts take a colour that can be read on it.
class Backdrop : public QLabel {
    Q_OBJECT
public:
    explicit Backdrop(QWidget* parent = nullptr);

    void set_tile(const QImage& tile);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void color_texts(bool seen);

    QPixmap tile_;
    QColor hardest_; ///< the colour of the picture that is the hardest to read on
};

} // namespace quittika
