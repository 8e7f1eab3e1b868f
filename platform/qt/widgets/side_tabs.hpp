#pragma once

#include <QTabWidget>

namespace quittika {

/// Pages whose captions stand beneath each other at the left, written as usual. The arrow keys go up and
/// down on them.
class SideTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit SideTabs(QWidget* parent = nullptr);
};

} // namespace quittika
