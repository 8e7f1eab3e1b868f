#pragma once

#include <QPointer>
#include <QWidget>

namespace quittika {

class ColumnList;

/// A row of labels, fields or heads over a `ColumnList`. Each child stands over the column that its property
/// `column` names, counted from 0, its text in line with the list's; with `lastColumn` over all columns up to
/// that one.
class ColumnRow : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString list READ list WRITE setList)
public:
    explicit ColumnRow(QWidget* parent = nullptr);

    /// Object name of the list in the same window.
    QString list() const { return list_name_; }
    void setList(const QString& name) { list_name_ = name; }
    /// Width in pixels that the children over a column need to be read; fields take what there is.
    int needed_width(int column) const;
    /// Scrolls the list as far as needed to see a child.
    void reveal(const QWidget& child) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ColumnList* find_list();
    void place_children();

    QString list_name_;
    QPointer<ColumnList> columns_;
};

} // namespace quittika
