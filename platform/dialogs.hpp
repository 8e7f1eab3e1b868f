#pragma once

#include "platform/forms/property.hpp"

#include <string>

namespace quittika {

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Symbol { None, Information, Question, Exclamation, Stop };
enum class Answer { Ok, Yes, No, Cancel };

struct MessageBox {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Symbol symbol = Symbol::None;
    /// What the Return key answers; by default the first button.
    Answer preset = Answer::Ok;
};

struct FileDialog {
    /// Pairs of text and pattern, all parted by "|": "Bilder (*.bmp)|*.bmp".
    std::string filter;
    /// File name that stands in the dialog at first, shown as `DATEINAME_BEREINIGEN` makes it; empty for
    /// none.
    std::string proposed_name;
    /// Empty for the desktop's own title.
    std::string title;
    /// Whether `open_file` takes the names of existing files only.
    bool must_exist = true;
    /// Whether the dialog asks before it takes the name of an existing file for a new one: `save_file`, and
    /// `open_file` where the file need not exist. Off where the program asks, for it may write another file
    /// than the one chosen.
    bool asks_before_replacing = true;
    /// Folder that the dialog begins in, a system path; empty, or one that is gone: where the last one ended.
    std::string folder = {};
};

struct PrinterDialog {
    int copies = 1; ///< that stand in the dialog at first
    /// File name that stands in the dialog at first, for a user who prints into a file; as above.
    std::string proposed_name;
};

/// Message boxes and the desktop's common dialogs.
/// A dialog that the user cancels throws `Laufzeitfehler` 32755.
class Dialogs {
public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    virtual Answer message(const MessageBox& box) = 0;
    /// Path of the chosen file, in the system's form (UTF-8).
    virtual std::string open_file(const FileDialog& dialog) = 0;
    virtual std::string save_file(const FileDialog& dialog) = 0;
    /// The colour chosen, beginning with `start`.
    virtual Color choose_color(Color start) = 0;
    /// Name of the font family chosen, beginning with `start`.
    virtual std::string choose_font(const std::string& start) = 0;
    /// Lets the user choose a printer and returns the number of copies.
    /// The printer chosen is the one that `Printing::printer` prints on. No file that exists is chosen
    /// without a question that names it.
    virtual int choose_printer(const PrinterDialog& dialog) = 0;
};

} // namespace quittika
