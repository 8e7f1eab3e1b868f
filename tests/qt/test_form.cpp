#include "tests/qt/test_form.hpp"

#include "tests/qt/widgets.hpp"

#include <QtWidgets>

#include <algorithm>
#include <cctype>

namespace quittika::test {

AllKinds::AllKinds() : Form("AllKinds", "All kinds", {.width = 9000, .height = 9000}) {
    First.Value.adopt(true);
    const auto note = [this](const Control& control, const char* event) {
        return [this, &control, event] { log += control.name() + "." + event + " "; };
    };
    for (Control* control : controls()) {
        control->Click = note(*control, "Click");
        control->GotFocus = note(*control, "GotFocus");
        control->LostFocus = note(*control, "LostFocus");
    }
    for (TextBox* field : {&Field, &Note}) {
        field->Change = note(*field, "Change");
    }
    Typed.Change = note(Typed, "Change");
    Bar.Change = note(Bar, "Change");
    Knob.Change = note(Knob, "Change");
}

std::string case_name(std::string what) {
    std::replace_if(
        what.begin(), what.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return what;
}

std::unique_ptr<QWidget> window_for_all_kinds() {
    auto window = std::make_unique<QWidget>();
    window->setObjectName(QStringLiteral("AllKinds"));
    new QVBoxLayout(window.get());
    add<QLineEdit>(*window, "Field");
    add<QPlainTextEdit>(*window, "Note");
    add<QCheckBox>(*window, "Tick");
    auto* choice = add<QGroupBox>(*window, "Choice");
    new QVBoxLayout(choice);
    for (const char* name : {"First", "Second", "Third"}) {
        add<QRadioButton>(*choice, name);
    }
    add<QRadioButton>(*window, "Stranger");
    add<QPushButton>(*window, "Button");
    add<QToolButton>(*window, "Tool")->setFocusPolicy(Qt::TabFocus);
    add<QLabel>(*window, "Caption_");
    add<QListView>(*window, "Rows");
    add<QComboBox>(*window, "Fixed");
    add<QComboBox>(*window, "Typed");
    add<QScrollBar>(*window, "Bar")->setOrientation(Qt::Horizontal);
    add<QSlider>(*window, "Knob");
    add<QProgressBar>(*window, "Progress");
    add<QLabel>(*window, "Picture");
    auto* tabs = add<QTabWidget>(*window, "Tabs");
    tabs->addTab(new QWidget, QString());
    auto* page = new QWidget;
    tabs->addTab(page, QString());
    new QVBoxLayout(page);
    auto* frame = add<QFrame>(*page, "Back");
    new QVBoxLayout(frame);
    add<QLineEdit>(*frame, "Hidden");
    add<QFrame>(*window, "Patch");
    auto* entry = new QAction(window.get());
    entry->setObjectName(QStringLiteral("Entry"));
    add<QLabel>(*window, "Panel");
    add<QLineEdit>(*window, "Line(0)");
    add<QLineEdit>(*window, "Line_1_"); // as the design compiler writes it
    add<QLabel>(*window, "ui_Heading");
    return window;
}

} // namespace quittika::test
