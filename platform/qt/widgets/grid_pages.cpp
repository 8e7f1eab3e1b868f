#include "platform/qt/widgets/grid_pages.hpp"

#include "platform/qt/widgets/amount_field.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace quittika {

namespace {

constexpr int kPages = 4;
constexpr int kRows = 9;

// The heading labels over the grid have the same widths.
constexpr int kTickWidth = 44;
constexpr int kQuantityWidth = 90;
constexpr int kAmountWidth = 120;
constexpr int kButtonWidth = 28;

QString element(const char* name, int row, int page) {
    return QStringLiteral("%1%2(%3)").arg(QLatin1String(name)).arg(row).arg(page);
}

template <class Field>
Field* make_field(QWidget* frame, const QString& name, const QString& spoken, const QString& text,
                  int width) {
    auto* field = new Field(frame);
    field->setObjectName(name);
    field->setText(text);
    field->setAccessibleName(spoken);
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
    for (int page = 0; page < kPages; ++page) {
        QWidget* frame = make_page(page);
        frame->setVisible(page == 0);
        pages->addWidget(frame, page, 0);
    }
}

QWidget* GridPages::make_page(int page) {
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("Frame_seite1(%1)").arg(page));
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    for (int row = 1; row <= kRows; ++row) {
        add_row(*grid, frame, page, row);
    }
    return frame;
}

void GridPages::add_row(QGridLayout& grid, QWidget* frame, int page, int row) {
    const auto spoken = [page, row](const char* what) {
        return QStringLiteral("%1, Seite %2, Zeile %3").arg(QString::fromUtf8(what)).arg(page + 1).arg(row);
    };
    auto* tick = new QCheckBox(QStringLiteral("K"), frame);
    tick->setObjectName(element("Check_K", row, page));
    tick->setAccessibleName(spoken("Kommentarzeile"));
    tick->setFixedWidth(theme::scaled(kTickWidth));
    auto* button = new QPushButton(QStringLiteral("+"), frame);
    button->setObjectName(element("Command_PLUS_", row, page));
    button->setAccessibleName(spoken("Artikel"));
    button->setFixedWidth(theme::scaled(kButtonWidth));

    const QString nothing = QStringLiteral("0,00");
    grid.addWidget(tick, row, 0);
    grid.addWidget(make_field<QLineEdit>(frame, element("Text_menge", row, page), spoken("Menge"),
                                         QStringLiteral("0"), kQuantityWidth),
                   row, 1);
    grid.addWidget(
        make_field<QLineEdit>(frame, element("Text_leistung", row, page), spoken("Leistung"), QString(), 0),
        row, 2);
    grid.addWidget(make_field<QLineEdit>(frame, element("Text_preis", row, page), spoken("Einzelpreis"),
                                         nothing, kAmountWidth),
                   row, 3);
    grid.addWidget(make_field<AmountField>(frame, element("Text_gesamtp", row, page), spoken("Gesamtpreis"),
                                           nothing, kAmountWidth),
                   row, 4);
    grid.addWidget(button, row, 5);
}

} // namespace quittika
