#pragma once

#include <QAbstractButton>

namespace quittika {

/// The head of a column by which a list is sorted: lies over the head's text in a `ColumnRow` and lets it
/// through. An arrow as its text, "▲" or "▼", stands in the strip beneath. For the Tab key all heads of a row
/// are one; the arrow keys go from one to the next.
class ColumnHead : public QAbstractButton {
    Q_OBJECT
public:
    static constexpr int kStrip = 7; ///< pixels beneath the texts

    explicit ColumnHead(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {0, kStrip}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QList<ColumnHead*> row() const;
};

} // namespace quittika
