#include "platform/script/script_dialogs.hpp"

#include "platform/dateiname.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/script/protocol.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace quittika {

namespace {

// In the order of the enumerations.
constexpr std::array<const char*, 3> kButtons{"ok", "yesno", "yesnocancel"};
constexpr std::array<const char*, 5> kSymbols{"none", "information", "question", "exclamation", "stop"};
constexpr std::array<const char*, 4> kAnswers{"ok", "yes", "no", "cancel"};

bool has_button(Buttons buttons, Answer answer) {
    switch (answer) {
    case Answer::Ok:
        return buttons == Buttons::Ok;
    case Answer::Cancel:
        return buttons == Buttons::YesNoCancel;
    case Answer::Yes:
    case Answer::No:
        break;
    }
    return buttons != Buttons::Ok;
}

std::string line_of(std::initializer_list<std::string> fields) {
    std::string line;
    for (const std::string& text : fields) {
        if (!line.empty()) {
            line += '|';
        }
        line += protocol::field(text);
    }
    return line;
}

std::string text_of(const choice::File& file) {
    return file.path;
}
std::string text_of(const choice::Colour& colour) {
    return std::to_string(colour.color);
}
std::string text_of(const choice::Font& font) {
    return font.name;
}
std::string text_of(const choice::Printer& printer) {
    return std::to_string(printer.copies);
}
std::string text_of(const choice::Cancel&) {
    return "cancel";
}
std::string text_of(const choice::Failure& failure) {
    return "fail " + std::to_string(failure.error);
}

} // namespace

const char* answer_name(Answer answer) {
    return kAnswers.at(static_cast<std::size_t>(answer));
}

Answer ScriptDialogs::message(const MessageBox& box) {
    Answer answer = box.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    const auto fitting = std::find_if(answers_.begin(), answers_.end(),
                                      [&box](Answer queued) { return has_button(box.buttons, queued); });
    if (fitting != answers_.end()) {
        answer = *fitting;
        answers_.erase(fitting);
    }
    boxes_.push_back(
        line_of({"box", box.title, kButtons.at(static_cast<std::size_t>(box.buttons)),
                 kSymbols.at(static_cast<std::size_t>(box.symbol)), box.text, answer_name(answer)}));
    return answer;
}

template <class Wanted> Choice ScriptDialogs::take() {
    const auto fits = [](const Choice& entry) {
        return std::holds_alternative<Wanted>(entry) || std::holds_alternative<choice::Cancel>(entry) ||
               std::holds_alternative<choice::Failure>(entry);
    };
    const auto found = std::find_if(choices_.begin(), choices_.end(), fits);
    if (found == choices_.end()) {
        return choice::Cancel{};
    }
    Choice entry = std::move(*found);
    choices_.erase(found);
    return entry;
}

template <class Wanted> Wanted ScriptDialogs::run(const char* kind, const FileDialog& dialog) {
    const Choice entry = take<Wanted>();
    const std::string answer = std::visit([](const auto& chosen) { return text_of(chosen); }, entry);
    dialogs_.push_back(line_of(
        {"dialog", kind, dialog.filter, DATEINAME_BEREINIGEN(dialog.proposed_name), dialog.title, answer}));
    if (const auto* failure = std::get_if<choice::Failure>(&entry)) {
        throw Laufzeitfehler(failure->error);
    }
    if (std::holds_alternative<choice::Cancel>(entry)) {
        throw Laufzeitfehler(fehler::kDialogAbgebrochen);
    }
    return std::get<Wanted>(entry);
}

std::string ScriptDialogs::open_file(const FileDialog& dialog) {
    return run<choice::File>("open", dialog).path;
}
std::string ScriptDialogs::save_file(const FileDialog& dialog) {
    return run<choice::File>("save", dialog).path;
}
Color ScriptDialogs::choose_color(Color /*start*/) {
    return run<choice::Colour>("color", {}).color;
}
std::string ScriptDialogs::choose_font(const std::string& /*start*/) {
    return run<choice::Font>("font", {}).name;
}
int ScriptDialogs::choose_printer(const PrinterDialog& dialog) {
    return run<choice::Printer>("printer", {{}, dialog.proposed_name, {}}).copies;
}

std::vector<std::string> ScriptDialogs::take_boxes() {
    return std::exchange(boxes_, {});
}
std::vector<std::string> ScriptDialogs::take_dialogs() {
    return std::exchange(dialogs_, {});
}

} // namespace quittika
