#pragma once

#include <QWidget>

namespace quittika {

/// Millimetres of an A4 sheet, along the upper or left edge of the widget that shows it.
class Ruler : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString sheet READ sheet WRITE setSheet)
    Q_PROPERTY(bool vertical READ vertical WRITE setVertical)
public:
    explicit Ruler(QWidget* parent = nullptr);

    /// Object name of the sheet, a widget of the same window.
    QString sheet() const { return sheet_; }
    void setSheet(const QString& name) { sheet_ = name; }
    bool vertical() const { return vertical_; }
    void setVertical(bool vertical) { vertical_ = vertical; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString sheet_;
    bool vertical_ = false;
    QWidget* shown_ = nullptr; ///< the sheet
};

} // namespace quittika
