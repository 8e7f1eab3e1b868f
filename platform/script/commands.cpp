#include "platform/script/commands.hpp"

#include "platform/script/listing.hpp"
#include "platform/script/lookup.hpp"
#include "platform/script/protocol.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <ostream>

namespace quittika {

namespace {

constexpr std::int64_t kLargest = std::numeric_limits<int>::max();
constexpr std::int64_t kMostCopies = 999; ///< as the print dialog takes them
constexpr std::int64_t kSmallest = std::numeric_limits<int>::min();
constexpr std::int64_t kLastKeyCode = 255;

/// Exactly `count` words. Throws `CommandError`.
std::vector<std::string_view> exactly(std::size_t count, std::string_view arguments) {
    auto found = protocol::words(arguments);
    const bool blank = std::find(found.begin(), found.end(), std::string_view{}) != found.end();
    if (found.size() != count || blank) {
        throw CommandError("Der Befehl braucht " + std::to_string(count) +
                           (count == 1 ? " Angabe" : " Angaben"));
    }
    return found;
}

int number(std::string_view text, std::int64_t min = kSmallest, std::int64_t max = kLargest) {
    return static_cast<int>(protocol::integer(text, min, max));
}

std::string text_argument(std::string_view arguments) {
    if (arguments.empty()) {
        throw CommandError("Der Befehl braucht 1 Angabe");
    }
    return protocol::decode(arguments);
}

} // namespace

struct Commands::Entry {
    std::string_view name;
    Handler handler;
    bool takes_arguments;
};

Commands::Commands(ScriptPlatform& platform, std::ostream& out)
    : platform_(platform), out_(out), user_(platform.desktop) {}

void Commands::run(std::string_view name, std::string_view arguments) {
    static constexpr std::array<Entry, 28> kCommands{{
        {"get", &Commands::get, true},
        {"items", &Commands::items, true},
        {"forms", &Commands::forms, false},
        {"controls", &Commands::controls, true},
        {"boxes", &Commands::boxes, false},
        {"dialogs", &Commands::dialogs, false},
        {"opened", &Commands::opened, false},
        {"pages", &Commands::pages, false},
        {"set", &Commands::set, true},
        {"type", &Commands::type, true},
        {"click", &Commands::click, true},
        {"dblclick", &Commands::dblclick, true},
        {"select", &Commands::select, true},
        {"key", &Commands::key, true},
        {"mouse", &Commands::mouse, true},
        {"drop", &Commands::drop, true},
        {"close", &Commands::close, true},
        {"answer", &Commands::answer, true},
        {"file", &Commands::file, true},
        {"color", &Commands::color, true},
        {"font", &Commands::font, true},
        {"printer", &Commands::printer, true},
        {"cancel", &Commands::cancel, false},
        {"fail", &Commands::fail, true},
        {"printto", &Commands::printto, true},
        {"clock", &Commands::clock, true},
        {"progress", &Commands::progress, false},
        {"abort", &Commands::abort, false},
    }};
    const auto found = std::find_if(kCommands.begin(), kCommands.end(),
                                    [name](const Entry& entry) { return entry.name == name; });
    if (found == kCommands.end()) {
        throw CommandError("Unbekannter Befehl " + std::string(name));
    }
    if (!found->takes_arguments && !arguments.empty()) {
        throw CommandError("Der Befehl " + std::string(name) + " steht allein");
    }
    (this->*(found->handler))(arguments);
}

Control& Commands::control(std::string_view name) const {
    return lookup::control(platform_.desktop, name);
}

void Commands::line(const std::string& text) {
    out_ << text << '\n';
}

void Commands::lines(const std::vector<std::string>& all) {
    for (const std::string& text : all) {
        line(text);
    }
}

void Commands::get(std::string_view arguments) {
    line(protocol::encode(lookup::value(platform_.desktop, arguments)));
}

void Commands::items(std::string_view arguments) {
    for (const std::string& item : lookup::items(platform_.desktop, arguments)) {
        line(protocol::encode(item));
    }
}

void Commands::forms(std::string_view /*arguments*/) {
    for (const Form* form : platform_.desktop.windows()) {
        const char* const modality = platform_.desktop.is_modal(*form) ? "modal" : "";
        line(protocol::field(form->name()) + '|' + protocol::field(form->Caption()) + '|' + modality);
    }
}

void Commands::controls(std::string_view arguments) {
    for (const Control* control : lookup::form(platform_.desktop, arguments).controls()) {
        line(protocol::field(control->name()) + '|' + std::string(control->kind()));
    }
}

void Commands::boxes(std::string_view /*arguments*/) {
    lines(platform_.dialogs.take_boxes());
}

void Commands::dialogs(std::string_view /*arguments*/) {
    lines(platform_.dialogs.take_dialogs());
}

void Commands::opened(std::string_view /*arguments*/) {
    lines(platform_.shell.take_opened());
}

void Commands::pages(std::string_view /*arguments*/) {
    for (const auto& job : platform_.printing.jobs()) {
        lines(listing(*job));
    }
}

void Commands::progress(std::string_view /*arguments*/) {
    lines(platform_.progress.take_displays());
}

void Commands::set(std::string_view arguments) {
    const auto [name, value] = protocol::part(arguments);
    user_.set(control(name), protocol::decode(value));
}

void Commands::type(std::string_view arguments) {
    const auto [name, text] = protocol::part(arguments);
    user_.type(control(name), protocol::decode(text));
}

void Commands::click(std::string_view arguments) {
    user_.click(control(arguments));
}

void Commands::dblclick(std::string_view arguments) {
    user_.dblclick(control(arguments));
}

void Commands::select(std::string_view arguments) {
    const auto given = exactly(2, arguments);
    user_.select(control(given[0]), number(given[1]));
}

void Commands::key(std::string_view arguments) {
    const auto given = exactly(2, arguments);
    user_.key(control(given[0]), number(given[1], 1, kLastKeyCode));
}

void Commands::mouse(std::string_view arguments) {
    const auto given = exactly(5, arguments);
    const auto button = static_cast<MouseButton>(number(given[2], 0, 2));
    user_.mouse(control(given[0]), std::string(given[1]), {button, number(given[3]), number(given[4])});
}

void Commands::drop(std::string_view arguments) {
    const auto [name, text] = protocol::part(arguments);
    if (Form* const form = platform_.desktop.find(name)) {
        user_.drop(*form, protocol::decode(text));
    } else {
        user_.drop(control(name), protocol::decode(text));
    }
}

void Commands::close(std::string_view arguments) {
    Form& form = lookup::form(platform_.desktop, arguments);
    lookup::require_reachable(platform_.desktop, form);
    form.Close();
}

void Commands::answer(std::string_view arguments) {
    for (const Answer known : {Answer::Ok, Answer::Yes, Answer::No, Answer::Cancel}) {
        if (arguments == answer_name(known)) {
            platform_.dialogs.queue(known);
            return;
        }
    }
    throw CommandError("Die Antwort ist yes, no, cancel oder ok, nicht \"" + std::string(arguments) + "\"");
}

void Commands::file(std::string_view arguments) {
    platform_.dialogs.queue(choice::File{text_argument(arguments)});
}

void Commands::color(std::string_view arguments) {
    platform_.dialogs.queue(choice::Colour{number(arguments, 0, quittika::color::kWhite)});
}

void Commands::font(std::string_view arguments) {
    platform_.dialogs.queue(choice::Font{text_argument(arguments)});
}

void Commands::printer(std::string_view arguments) {
    platform_.dialogs.queue(choice::Printer{number(arguments, 1, kMostCopies)});
}

void Commands::cancel(std::string_view /*arguments*/) {
    platform_.dialogs.queue(choice::Cancel{});
}

void Commands::fail(std::string_view arguments) {
    platform_.dialogs.queue(choice::Failure{number(arguments, 1)});
}

void Commands::abort(std::string_view /*arguments*/) {
    platform_.progress.queue_abort();
}

void Commands::printto(std::string_view arguments) {
    platform_.printing.print_to(text_argument(arguments));
}

void Commands::clock(std::string_view arguments) {
    const auto time = protocol::time_stamp(arguments);
    if (!time) {
        throw CommandError("Die Zeit hat die Form jjjj-mm-ttThh:mm:ss");
    }
    platform_.clock.set(*time);
}

} // namespace quittika
