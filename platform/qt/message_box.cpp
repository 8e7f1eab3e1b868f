#include "platform/qt/message_box.hpp"

#include "platform/qt/qt_text.hpp"

#include <QApplication>
#include <QMessageBox>

#include <utility>

namespace quittika {

namespace {

struct ButtonSet {
    Buttons buttons;
    QMessageBox::StandardButtons shown;
    QMessageBox::StandardButton escape;
};

constexpr ButtonSet kSets[] = {
    {Buttons::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {Buttons::YesNo, QMessageBox::Yes | QMessageBox::No, QMessageBox::No},
    {Buttons::YesNoCancel, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel},
};

constexpr std::pair<Answer, QMessageBox::StandardButton> kAnswers[] = {
    {Answer::Ok, QMessageBox::Ok},
    {Answer::Yes, QMessageBox::Yes},
    {Answer::No, QMessageBox::No},
    {Answer::Cancel, QMessageBox::Cancel},
};

constexpr std::pair<Symbol, QMessageBox::Icon> kIcons[] = {
    {Symbol::None, QMessageBox::NoIcon},       {Symbol::Information, QMessageBox::Information},
    {Symbol::Question, QMessageBox::Question}, {Symbol::Exclamation, QMessageBox::Warning},
    {Symbol::Stop, QMessageBox::Critical},
};

template <class Table, class Key> auto look_up(const Table& table, Key key) {
    for (const auto& [from, to] : table) {
        if (from == key) {
            return to;
        }
    }
    return std::begin(table)->second;
}

const ButtonSet& set_of(Buttons buttons) {
    for (const ButtonSet& set : kSets) {
        if (set.buttons == buttons) {
            return set;
        }
    }
    return kSets[0];
}

Answer answer_of(int button) {
    for (const auto& [answer, standard] : kAnswers) {
        if (standard == button) {
            return answer;
        }
    }
    return Answer::Cancel;
}

} // namespace

QWidget* dialog_parent() {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget* active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            return window;
        }
    }
    return nullptr;
}

Answer show_message(const MessageBox& box) {
    const ButtonSet& set = set_of(box.buttons);
    QMessageBox window(look_up(kIcons, box.symbol), to_qt(box.title), lines_to_qt(box.text), set.shown,
                       dialog_parent());
    window.setTextFormat(Qt::PlainText);
    window.setEscapeButton(set.escape);
    const QMessageBox::StandardButton preset = look_up(kAnswers, box.preset);
    window.setDefaultButton(
        set.shown.testFlag(preset)
            ? preset
            : (set.shown.testFlag(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok));
    return answer_of(window.exec());
}

} // namespace quittika
