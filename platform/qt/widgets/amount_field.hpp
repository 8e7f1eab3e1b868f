#pragma once

#include <QLineEdit>

namespace quittika {

/// A calculated amount: right-aligned, to be read and copied but not typed, without the box of an input
/// field.
class AmountField : public QLineEdit {
    Q_OBJECT
public:
    explicit AmountField(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void clear_ground();
};

} // namespace quittika
