#pragma once

#include <QScrollArea>

class QBoxLayout;

namespace quittika {

/// The main window's content. It scrolls only where a screen is too small for it; a narrow one has the `side`
/// part beneath the rest, a wide one beside it, and a very wide one has its pieces beside each other as well.
class ContentArea : public QScrollArea {
    Q_OBJECT
    Q_PROPERTY(QString body READ body WRITE setBody)
    Q_PROPERTY(QString side READ side WRITE setSide)
public:
    explicit ContentArea(QWidget* parent = nullptr);

    /// Object name of the widget whose box layout is turned; the side part is one of its items.
    QString body() const { return body_; }
    void setBody(const QString& name) { body_ = name; }
    /// Object name of the part whose own box layout is turned the other way.
    QString side() const { return side_; }
    void setSide(const QString& name) { side_ = name; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QBoxLayout* box_of(const QString& name) const;
    void arrange(QBoxLayout& body, QBoxLayout& side) const;

    QString body_;
    QString side_;
};

} // namespace quittika
