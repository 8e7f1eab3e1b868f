#pragma once

#include <QAbstractButton>

namespace quittika {

/// The head of a column by which a list is sorted: lies over the two lines of the head's text in a
/// `ColumnRow` and lets them through. An arrow as its text, "▲" or "▼", stands in the strip beneath. For the
/// Tab key all heads of a row are one; the arrow keys go from one to the next.
class ColumnHead : public QAbstractButton {
    Q_OBJECT
public:
    explicit ColumnHead(QWidget* parent = nullptr);
    /// High enough for both lines and the strip.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QList<ColumnHead*> row() const;
};

} // namespace quittika
