#pragma once

#include <QLabel>

namespace quittika {

/// A label of one line that shortens a text too long for it and then tells the whole text as its tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    Qt::TextElideMode elideMode() const { return mode_; }
    void setElideMode(Qt::TextElideMode mode);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    /// Of a label with a buddy, "&" marks a letter.
    int text_flags() const;
    QString shown_text() const;

    Qt::TextElideMode mode_ = Qt::ElideRight;
};

} // namespace quittika
