#pragma once

#include "platform/dialogs.hpp"

#include <deque>
#include <string>
#include <variant>
#include <vector>

namespace quittika {

/// A user's choice in one of the common dialogs, waiting for the dialog to come.
namespace choice {
struct File {
    std::string path;
};
struct Colour {
    Color color;
};
struct Font {
    std::string name;
};
struct Printer {
    int copies;
};
struct Cancel {};
struct Failure {
    int error;
};
} // namespace choice
using Choice = std::variant<choice::File, choice::Colour, choice::Font, choice::Printer, choice::Cancel,
                            choice::Failure>;

/// Dialogs that are answered by queues. What is not queued is answered no (boxes) or cancelled.
class ScriptDialogs final : public Dialogs {
public:
    /// Takes the first queued answer that the box has a button for; the others wait for a later box.
    Answer message(const MessageBox& box) override;
    /// The dialogs take the first queued choice of their kind, a cancel or a failure.
    std::string open_file(const FileDialog& dialog) override;
    std::string save_file(const FileDialog& dialog) override;
    Color choose_color(Color start) override;
    std::string choose_font(const std::string& start) override;
    int choose_printer(const PrinterDialog& dialog) override;

    void queue(Answer answer) { answers_.push_back(answer); }
    void queue(Choice entry) { choices_.push_back(std::move(entry)); }

    /// The boxes since the last call, as lines of the protocol.
    std::vector<std::string> take_boxes();
    /// The other dialogs since the last call, as lines of the protocol.
    std::vector<std::string> take_dialogs();

private:
    template <class Wanted> Wanted run(const char* kind, const FileDialog& dialog);
    template <class Wanted> Choice take();

    std::deque<Answer> answers_;
    std::deque<Choice> choices_;
    std::vector<std::string> boxes_;
    std::vector<std::string> dialogs_;
};

/// Spelling of an answer in commands and data ("yes").
const char* answer_name(Answer answer);

} // namespace quittika
