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

std::unique_ptr<QWidget> workbench() {
    auto window = std::make_unique<QMainWindow>();
    window->setObjectName("Workbench");
    auto* centre = new QWidget;
    centre->setObjectName("ui_Centre");
    window->setCentralWidget(centre);
    new QVBoxLayout(centre);
    add<QPushButton>(*centre, "Open");
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
    add<QPlainTextEdit>(field_page, "Remark");
    add<QSlider>(field_page, "Red")->setOrientation(Qt::Horizontal);
    (new QFrame(&field_page))->setObjectName("Patch");
    QWidget& work_page = add_page(*tabs);
    add<QPushButton>(work_page, "Work");
    add<QLabel>(work_page, "Result");
    auto* choice = new QFrame(centre);
    choice->setObjectName("Choice");
    new QVBoxLayout(choice);
    add<QLabel>(*choice, "ui_Text")->setText("Farbe auswählen");
    return window;
}

std::unique_ptr<QWidget> articles() {
    auto window = std::make_unique<QDialog>();
    window->setObjectName("Articles");
    new QVBoxLayout(window.get());
    add<QListView>(*window, "List");
    add<QPushButton>(*window, "Done");
    return window;
}

} // namespace

std::unique_ptr<QWidget> workbench_window(std::string_view form) {
    return form == "Workbench" ? workbench() : articles();
}

} // namespace quittika::test
