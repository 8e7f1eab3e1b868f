#include "platform/qt/message_box.hpp"

#include "platform/qt/qt_text.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include <utility>

namespace quittika {

namespace {

struct ButtonSet {
    Buttons buttons;
    QMessageBox::StandardButtons shown;
    QMessageBox::StandardButton escape; ///< none where each answer has its consequence
};

constexpr ButtonSet kSets[] = {
    {Buttons::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {Buttons::YesNo, QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton},
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

/// A box that can know no third way: then neither its frame nor Escape answers for the user.
class Question final : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

    void insist() {
        setWindowFlags((windowFlags() | Qt::CustomizeWindowHint | Qt::WindowTitleHint) &
                       ~(Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint));
        insists_ = true;
    }
    void reject() override {
        if (!insists_) {
            QMessageBox::reject();
        }
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        if (insists_) {
            event->ignore();
        } else {
            QMessageBox::closeEvent(event);
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (!insists_ || !event->matches(QKeySequence::Cancel)) {
            QMessageBox::keyPressEvent(event);
        }
    }

private:
    bool insists_ = false;
};

Answer answer_of(int button) {
    for (const auto& [answer, standard] : kAnswers) {
        if (standard == button) {
            return answer;
        }
    }
    return Answer::Cancel;
}

} // namespace

QWidget* dialog_parent(QWidget* former) {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget* active = QApplication::activeWindow()) {
        return active;
    }
    if (former != nullptr && former->isVisible()) {
        return former;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            return window;
        }
    }
    return nullptr;
}

Answer show_message(const MessageBox& box, QWidget* parent) {
    const ButtonSet& set = set_of(box.buttons);
    Question window(look_up(kIcons, box.symbol), to_qt(box.title), lines_to_qt(box.text), set.shown, parent);
    window.setTextFormat(Qt::PlainText);
    if (set.escape != QMessageBox::NoButton) {
        window.setEscapeButton(set.escape);
    } else {
        window.insist();
    }
    const QMessageBox::StandardButton preset = look_up(kAnswers, box.preset);
    window.setDefaultButton(
        set.shown.testFlag(preset)
            ? preset
            : (set.shown.testFlag(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok));
    return answer_of(window.exec());
}

} // namespace quittika
