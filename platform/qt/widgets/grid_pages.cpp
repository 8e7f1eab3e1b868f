#include "platform/qt/widgets/grid_pages.hpp"

#include "platform/qt/widgets/amount_field.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace quittika {

namespace {

// The heading labels over the grid have the same widths.
constexpr int kTickWidth = 44;
constexpr int kQuantityWidth = 90;
constexpr int kAmountWidth = 110;
constexpr int kButtonWidth = 28;

template <class Button> Button* make_button(QWidget* frame, const char* text, int width) {
    auto* button = new Button(QLatin1String(text), frame);
    button->setFixedWidth(theme::scaled(width));
    return button;
}

/// A width of 0 takes the room that is left.
template <class Field> Field* make_field(QWidget* frame, const char* text, int width) {
    auto* field = new Field(frame);
    field->setText(QLatin1String(text));
    field->setAlignment(width > 0 ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    if (width > 0) {
        field->setFixedWidth(theme::scaled(width));
    }
    return field;
}

} // namespace

void GridPages::build() {
    auto* pages = new QGridLayout(this);
    pages->setContentsMargins(0, 0, 0, 0);
    for (int page = 0; page < pages_; ++page) {
        QWidget* frame = make_page(page);
        frame->setVisible(page == 0);
        pages->addWidget(frame, page, 0);
    }
}

QWidget* GridPages::make_page(int page) {
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("%1(%2)").arg(page_).arg(page));
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    for (int row = 1; row <= rows_; ++row) {
        add_row(*grid, frame, page, row);
    }
    return frame;
}

void GridPages::add_row(QGridLayout& grid, QWidget* frame, int page, int row) {
    const std::array<QWidget*, 6> cells{make_button<QCheckBox>(frame, "K", kTickWidth),
                                        make_field<QLineEdit>(frame, "0", kQuantityWidth),
                                        make_field<QLineEdit>(frame, "", 0),
                                        make_field<QLineEdit>(frame, "0,00", kAmountWidth),
                                        make_field<AmountField>(frame, "0,00", kAmountWidth),
                                        make_button<QPushButton>(frame, "+", kButtonWidth)};
    int column = 0;
    for (QWidget* cell : cells) {
        cell->setObjectName(QStringLiteral("%1%2(%3)").arg(columns_.value(column)).arg(row).arg(page));
        cell->setAccessibleName(
            QStringLiteral("%1, Seite %2, Zeile %3").arg(spoken_.value(column)).arg(page + 1).arg(row));
        grid.addWidget(cell, row, column++);
    }
}

} // namespace quittika
