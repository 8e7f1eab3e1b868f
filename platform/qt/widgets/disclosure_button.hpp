#pragma once

#include <QToolButton>

namespace quittika {

/// Heading of a part of a window that can be folded away; switched on, the part is open.
class DisclosureButton : public QToolButton {
    Q_OBJECT
public:
    explicit DisclosureButton(QWidget *parent = nullptr);

private:
    void show_state(bool open);
};

} // namespace quittika
