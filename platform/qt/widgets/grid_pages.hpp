#pragma once

#include "platform/qt/widgets/late_content.hpp"

#include <QString>
#include <QStringList>

class QGridLayout;

namespace quittika {

/// Pages of like rows, one page in front: tick, quantity, text, price, total and a button. The design names
/// them: a page is called "<page>(p)", p from 0, a column "<column>r(p)" in row r, r from 1.
class GridPages : public LateContent {
    Q_OBJECT
    Q_PROPERTY(int pages MEMBER pages_)
    Q_PROPERTY(int rows MEMBER rows_)
    Q_PROPERTY(QString page MEMBER page_)
    Q_PROPERTY(QStringList columns MEMBER columns_) ///< six, from left to right
    Q_PROPERTY(QStringList spoken MEMBER spoken_)   ///< what the columns are called for accessibility
public:
    explicit GridPages(QWidget* parent = nullptr) : LateContent(parent) {}

protected:
    void build() override;

private:
    QWidget* make_page(int page);
    void add_row(QGridLayout& grid, QWidget* frame, int page, int row);

    int pages_ = 0;
    int rows_ = 0;
    QString page_;
    QStringList columns_;
    QStringList spoken_;
};

} // namespace quittika
