#pragma once

#include <QScrollArea>

namespace quittika {

/// A column at a window's side that scrolls where the window is too low for it; it is always as wide as what
/// it holds.
class SideScroll : public QScrollArea {
    Q_OBJECT
public:
    explicit SideScroll(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace quittika
