#include "platform/qt/guard.hpp"

#include "platform/forms/form.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/message_box.hpp"

#include <exception>
#include <string>

namespace quittika {

namespace {

constexpr const char* kTitle = "Quittika 2008";

void report(const std::string& text) {
    show_message({text, kTitle, Buttons::Ok, Symbol::Stop});
}

std::string description(const Laufzeitfehler& error) {
    std::string text =
        "Laufzeitfehler " + std::to_string(error.nummer()) + ":\n\n" + fehlertext(error.nummer());
    if (!error.ort().empty()) {
        text += "\n\n" + error.ort();
    }
    return text;
}

} // namespace

bool guarded(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const Laufzeitfehler& error) {
        report(description(error));
    } catch (const std::exception& error) {
        report(std::string("Unerwarteter Fehler:\n\n") + error.what());
    }
    return false;
}

bool guarded(Form& form, const std::function<void()>& work) {
    const Activity::Hold here(form.activity());
    return guarded(work);
}

} // namespace quittika
