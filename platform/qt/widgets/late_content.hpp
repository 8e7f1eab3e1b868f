#pragma once

#include <QWidget>

namespace quittika {

/// A part of a window that is seldom looked at: its widgets are made when it is first shown.
class LateContent : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Makes the widgets, once.
    void complete();
    bool is_complete() const { return complete_; }

signals:
    void completed();

protected:
    virtual void build() = 0;
    void showEvent(QShowEvent* event) override;

private:
    /// Tells everything around that there is more to show now.
    void claim_room();

    bool complete_ = false;
};

} // namespace quittika
