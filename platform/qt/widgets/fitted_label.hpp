#pragma once

#include <QLabel>

namespace quittika {

/// A label that shows any text whole: it breaks lines, within a word that is too long for one, and takes a
/// smaller font where they are too many.
class FittedLabel : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont fitting_font(const QRect& box) const;
};

} // namespace quittika
