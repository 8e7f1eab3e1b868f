#pragma once

#include <QListView>

namespace quittika {

/// A list of rows in a fixed-pitch font, whose size follows the width so that `columns` characters fill it.
class ColumnList : public QListView {
    Q_OBJECT
    Q_PROPERTY(int columns READ columns WRITE setColumns)
public:
    explicit ColumnList(QWidget* parent = nullptr);

    int columns() const { return columns_; }
    void setColumns(int columns);
    /// Left edge of the first character of a row, in pixels from the list's left edge.
    double text_left() const;
    /// Width of a character in pixels.
    double column_width() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int chrome_width() const;
    void fit_font();

    int columns_ = 80;
};

} // namespace quittika
