#pragma once

#include "platform/qt/widgets/late_content.hpp"

class QGridLayout;

namespace quittika {

/// The four pages of the position grid, nine rows each: tick, quantity, service, price, total and a button,
/// named "Check_K1(0)" to "Command_PLUS_9(3)" in the frames "Frame_seite1(0)" to "Frame_seite1(3)".
class GridPages : public LateContent {
    Q_OBJECT
public:
    explicit GridPages(QWidget* parent = nullptr) : LateContent(parent) {}

protected:
    void build() override;

private:
    QWidget* make_page(int page);
    void add_row(QGridLayout& grid, QWidget* frame, int page, int row);
};

} // namespace quittika
