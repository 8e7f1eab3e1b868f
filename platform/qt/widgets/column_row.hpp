#pragma once

#include <QPointer>
#include <QWidget>

namespace quittika {

class ColumnList;

/// A row of labels or fields over a `ColumnList`. Each child stands between the character columns
/// that its properties `columnFrom` and `columnTo` name (0 is the left edge of the first character),
/// in line with the list's text at any size.
class ColumnRow : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString list READ list WRITE setList)
public:
    explicit ColumnRow(QWidget* parent = nullptr);

    /// Object name of the list in the same window.
    QString list() const { return list_name_; }
    void setList(const QString& name) { list_name_ = name; }
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
