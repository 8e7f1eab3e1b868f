#include "tests/qt/mouse/workbench_window.hpp"

#include "tests/qt/widgets.hpp"

#include <QtWidgets>

namespace quittika::test {
namespace {

QWidget& add_page(QTabWidget& tabs) {
    auto* page = new QWidget;
    new QVBoxLayout(page);
    tabs.addTab(page, QString());
    return *page;
}

} // namespace

std::unique_ptr<QWidget> workbench_window(std::string_view /*form*/) {
    auto window = std::make_unique<QMainWindow>();
    window->setObjectName("Workbench");
    auto* centre = new QWidget;
    centre->setObjectName("ui_Centre");
    window->setCentralWidget(centre);
    new QVBoxLayout(centre);
    auto* tabs = add<QTabWidget>(*centre, "Tabs");
    QWidget& sheet_page = add_page(*tabs);
    add<QCheckBox>(sheet_page, "Movable");
    auto* desk = add<QWidget>(sheet_page, "ui_Desk"); // the sheet is not measured in it
    new QVBoxLayout(desk);
    auto* sheet = add<QFrame>(*desk, "Sheet");
    sheet->setFrameShape(QFrame::Box);
    add<QLabel>(*sheet, "Block");
    QWidget& field_page = add_page(*tabs);
    add<QLineEdit>(field_page, "Service");
    add<QSlider>(field_page, "Red")->setOrientation(Qt::Horizontal);
    (new QFrame(&field_page))->setObjectName("Patch");
    auto* choice = new QFrame(centre);
    choice->setObjectName("Choice");
    new QVBoxLayout(choice);
    add<QLabel>(*choice, "ui_Text")->setText("Farbe auswählen");
    return window;
}

} // namespace quittika::test
