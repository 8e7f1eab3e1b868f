#pragma once

#include <QColor>
#include <QFrame>

namespace quittika {

/// A line or an outline that lies over other widgets; the mouse goes through it to what is beneath. As thin
/// as a pixel it is a line, else the outline of its room.
class Guide : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QColor ink READ ink WRITE setInk)
    Q_PROPERTY(bool dashed READ dashed WRITE setDashed)
public:
    explicit Guide(QWidget* parent = nullptr);

    QColor ink() const { return ink_; }
    void setInk(const QColor& ink) { ink_ = ink; }
    bool dashed() const { return dashed_; }
    void setDashed(bool dashed) { dashed_ = dashed; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor ink_ = Qt::black;
    bool dashed_ = false;
};

} // namespace quittika
