#include "tests/qt/mouse/workbench_window.hpp"

#include "ui_Articles.h"
#include "ui_Workbench.h"

namespace quittika::test {
namespace {

template <class Window, class Design> std::unique_ptr<QWidget> window() {
    auto made = std::make_unique<Window>();
    Design().setupUi(made.get());
    return made;
}

} // namespace

std::unique_ptr<QWidget> workbench_window(std::string_view form) {
    return form == "Workbench" ? window<QMainWindow, Ui::Workbench>() : window<QDialog, Ui::Articles>();
}

} // namespace quittika::test
