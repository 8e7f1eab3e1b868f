#include "platform/script/user_values.hpp"

#include "platform/forms/controls.hpp"
#include "platform/laufwerke.hpp"
#include "platform/script/lookup.hpp"
#include "platform/script/protocol.hpp"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <sstream>
#include <string_view>
#include <system_error>

namespace quittika::user_values {

namespace {

using Deed = std::function<void()>;

[[noreturn]] void refuse(const Control& control, const std::string& why) {
    throw CommandError(lookup::full_name(control) + " " + why);
}

[[noreturn]] void refuse_value(const Control& control, const std::string& value) {
    refuse(control, "kann nicht \"" + value + "\" werden");
}

int number(const std::string& value) {
    return static_cast<int>(
        protocol::integer(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

Deed set_text_box(TextBox& box, const std::string& value) {
    if (box.Locked()) {
        refuse(box, "ist schreibgeschützt");
    }
    return [&box, value] { box.user_type(value); };
}

Deed set_check_box(CheckBox& box, const std::string& value) {
    const int wanted = number(value);
    const bool reachable = wanted == 0 || wanted == 1 || wanted == box.Value();
    if (!reachable) {
        refuse_value(box, value);
    }
    return [&box, wanted] {
        // A greyed box is ticked by the first click. A handler may refuse, so the clicks are counted.
        for (int clicks = box.Value() == 2 && wanted == 0 ? 2 : 1; clicks > 0 && box.Value() != wanted;
             --clicks) {
            box.user_click();
        }
    };
}

Deed set_option_button(OptionButton& button, const std::string& value) {
    const int wanted = number(value);
    if (wanted < -1 || wanted > 1 || (wanted == 0 && button.Value())) {
        refuse_value(button, value);
    }
    return [&button, wanted] {
        if (wanted != 0) {
            button.user_click();
        }
    };
}

Deed set_combo_box(ComboBox& box, const std::string& value) {
    if (box.editable()) {
        return [&box, value] { box.Text = value; };
    }
    const auto found = std::find(box.items().begin(), box.items().end(), value);
    if (found == box.items().end()) {
        refuse_value(box, value);
    }
    const int first = static_cast<int>(found - box.items().begin());
    const int index = box.List(box.ListIndex()) == value && box.ListIndex() >= 0 ? box.ListIndex() : first;
    return [&box, index] { box.user_select(index); };
}

Deed set_range(RangeControl& range, const std::string& value) {
    const int wanted = number(value);
    if (wanted < range.Min() || wanted > range.Max()) {
        refuse_value(range, value);
    }
    return [&range, wanted] { range.Value = wanted; };
}

Deed set_drive(DriveListBox& list, const std::string& value) {
    const std::vector<Laufwerk> drives = LAUFWERKE();
    if (std::none_of(drives.begin(), drives.end(),
                     [&](const Laufwerk& drive) { return drive.pfad == value; })) {
        refuse_value(list, value);
    }
    return [&list, value] { list.Path = value; };
}

Deed set_directory(DirListBox& list, const std::string& value) {
    std::error_code error;
    if (!std::filesystem::is_directory(value, error)) {
        refuse_value(list, value);
    }
    // A click gives the path without detours and without a "/" at its end.
    const std::filesystem::path path = std::filesystem::absolute(value).lexically_normal();
    const bool ends_with_mark = path.has_relative_path() && !path.has_filename();
    return [&list, chosen = (ends_with_mark ? path.parent_path() : path).string()] { list.Path = chosen; };
}

/// Value of a hexadecimal digit, -1 for anything else.
int digit(char c) {
    constexpr std::string_view kDigits = "0123456789ABCDEFabcdef";
    const std::size_t place = kDigits.find(c);
    return place == std::string_view::npos ? -1 : static_cast<int>(place < 16 ? place : place - 6);
}

/// "file:///a%20b" and "file://machine/a%20b" to "/a b"; anything else is a path already.
std::string path_of(std::string_view text) {
    constexpr std::string_view kScheme = "file://";
    if (text.substr(0, kScheme.size()) != kScheme) {
        return std::string(text);
    }
    text.remove_prefix(std::min(text.find('/', kScheme.size()), text.size()));
    std::string path;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escape =
            text[i] == '%' && i + 2 < text.size() && digit(text[i + 1]) >= 0 && digit(text[i + 2]) >= 0;
        path += escape ? static_cast<char>(digit(text[i + 1]) * 16 + digit(text[i + 2])) : text[i];
        i += escape ? 2 : 0;
    }
    return path;
}

} // namespace

std::vector<std::string> paths(const std::string& lines) {
    std::vector<std::string> found;
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (!line.empty()) {
            found.push_back(path_of(line));
        }
    }
    return found;
}

std::function<void()> setter(Control& control, const std::string& value) {
    if (auto* const text = dynamic_cast<TextBox*>(&control)) {
        return set_text_box(*text, value);
    }
    if (auto* const check = dynamic_cast<CheckBox*>(&control)) {
        return set_check_box(*check, value);
    }
    if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
        return set_option_button(*option, value);
    }
    if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
        return set_combo_box(*combo, value);
    }
    if (auto* const drives = dynamic_cast<DriveListBox*>(&control)) {
        return set_drive(*drives, value);
    }
    if (auto* const directories = dynamic_cast<DirListBox*>(&control)) {
        return set_directory(*directories, value);
    }
    auto* const range = dynamic_cast<RangeControl*>(&control);
    if (range != nullptr && control.kind() != "ProgressBar") {
        return set_range(*range, value);
    }
    refuse(control, "nimmt keinen Wert an");
}

std::function<void(const std::string& character)> typist(Control& control) {
    if (auto* const text = dynamic_cast<TextBox*>(&control); text != nullptr && !text->Locked()) {
        return [text](const std::string& character) { text->user_type(text->Text() + character); };
    }
    if (auto* const combo = dynamic_cast<ComboBox*>(&control); combo != nullptr && combo->editable()) {
        return [combo](const std::string& character) { combo->Text = combo->Text() + character; };
    }
    refuse(control, "nimmt keine Eingabe an");
}

} // namespace quittika::user_values
