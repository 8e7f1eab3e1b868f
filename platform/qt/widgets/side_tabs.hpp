#pragma once

#include <QTabWidget>

namespace quittika {

/// Pages whose captions stand beneath each other at the left, written as usual, and the arrow keys go up and
/// down on them. In a window too narrow for its text they stand above the pages, which need the room.
class SideTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit SideTabs(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void turn();
};

} // namespace quittika
