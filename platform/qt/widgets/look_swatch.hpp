#pragma once

#include <QFrame>

namespace quittika {

/// A sample of the program's own look, whatever the window around it is painted in: the ground of windows
/// with a panel on it.
class LookSwatch : public QFrame {
    Q_OBJECT
public:
    explicit LookSwatch(QWidget* parent = nullptr) : QFrame(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quittika
