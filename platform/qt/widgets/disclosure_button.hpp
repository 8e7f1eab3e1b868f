#pragma once

#include <QPixmap>
#include <QToolButton>

namespace quittika {

/// Heading of a part of a window that can be folded away; switched on, the part is open.
/// In a scroll area an opened part comes into view.
class DisclosureButton : public QToolButton {
    Q_OBJECT
public:
    explicit DisclosureButton(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
    void initStyleOption(QStyleOptionToolButton* option) const override;

private:
    /// Unlike the style's own arrows, as large as the icon and in the colour of the text.
    QPixmap arrow(bool down) const;
    void show_state(bool open);
    void scroll_up();
};

} // namespace quittika
