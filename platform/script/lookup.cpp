#include "platform/script/lookup.hpp"

#include "platform/forms/chart.hpp"
#include "platform/forms/controls.hpp"
#include "platform/script/protocol.hpp"

#include <optional>

namespace quittika::lookup {

namespace {

/// A name split at a dot; without one the tail is empty.
struct Dotted {
    std::string_view head;
    std::string_view tail;
};

Dotted split(std::string_view name, std::size_t dot) {
    return dot == std::string_view::npos ? Dotted{name, {}}
                                         : Dotted{name.substr(0, dot), name.substr(dot + 1)};
}

[[noreturn]] void no_control(std::string_view name) {
    throw CommandError("Es gibt kein Steuerelement " + std::string(name));
}

std::optional<std::string> property_text(const PropertyHost& host, std::string_view name) {
    const auto id = property_id(name);
    const PropertyBase* const property = id ? host.property(*id) : nullptr;
    return property != nullptr ? std::optional(property->as_text()) : std::nullopt;
}

std::optional<std::string> form_property(const Form& form, std::string_view name) {
    if (name == property_name(PropertyId::Visible)) {
        return form.shown() ? "-1" : "0";
    }
    return property_text(form, name);
}

const std::vector<std::string>* items_of(const Control& control) {
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
        return &list->items();
    }
    const auto* combo = dynamic_cast<const ComboBox*>(&control);
    return combo != nullptr ? &combo->items() : nullptr;
}

std::vector<std::string> bars_of(const Chart& chart) {
    std::vector<std::string> bars;
    for (int index = 0; index < chart.ListCount(); ++index) {
        bars.push_back(chart.bar_text(index));
    }
    return bars;
}

/// Indices of the items as the user sees them, from top to bottom.
std::string shown_items(const ListBox& list) {
    std::string shown;
    for (int row = 0; row < list.shown_count(); ++row) {
        shown += (row == 0 ? "" : " ") + std::to_string(list.item_in(row));
    }
    return shown;
}

/// Properties of lists that are calculated, not kept.
std::optional<std::string> list_property(const Control& control, std::string_view name) {
    const auto* const list = dynamic_cast<const ListBox*>(&control);
    if (list != nullptr && name == "Shown") {
        return shown_items(*list);
    }
    const std::vector<std::string>* const items = items_of(control);
    if (items != nullptr && name == property_name(PropertyId::ListCount)) {
        return std::to_string(items->size());
    }
    if (items != nullptr && name == property_name(PropertyId::Text)) {
        return control.main_value();
    }
    return std::nullopt;
}

} // namespace

Form& form(const ScriptDesktop& desktop, std::string_view name) {
    if (desktop.forms().empty()) {
        throw CommandError("Es läuft kein Programm");
    }
    if (Form* const found = desktop.find(name)) {
        return *found;
    }
    throw CommandError("Es gibt kein Fenster " + std::string(name));
}

Control& control(const ScriptDesktop& desktop, std::string_view name) {
    const Dotted parts = split(name, name.find('.'));
    if (Control* const found = form(desktop, parts.head).find(parts.tail)) {
        return *found;
    }
    no_control(name);
}

std::string value(const ScriptDesktop& desktop, std::string_view name) {
    const Dotted parts = split(name, name.find('.'));
    const Form& owner = form(desktop, parts.head);
    if (parts.tail.empty()) {
        return owner.Caption();
    }
    if (const Control* const whole = owner.find(parts.tail)) {
        return whole->main_value();
    }
    const Dotted deeper = split(parts.tail, parts.tail.rfind('.'));
    const Control* const found = owner.find(deeper.head);
    auto text = found == nullptr ? form_property(owner, parts.tail) : list_property(*found, deeper.tail);
    if (found != nullptr && !text) {
        text = property_text(*found, deeper.tail);
    }
    if (text) {
        return *text;
    }
    if (found == nullptr) {
        no_control(name);
    }
    throw CommandError(full_name(*found) + " hat keine Eigenschaft " + std::string(deeper.tail));
}

std::vector<std::string> items(const ScriptDesktop& desktop, std::string_view name) {
    const Control& owner = control(desktop, name);
    if (const auto* const chart = dynamic_cast<const Chart*>(&owner)) {
        return bars_of(*chart);
    }
    if (const auto* const found = items_of(owner)) {
        return *found;
    }
    throw CommandError(full_name(owner) + " hat keine Einträge");
}

void require_reachable(const ScriptDesktop& desktop, const Form& form) {
    if (!form.shown()) {
        throw CommandError("Das Fenster " + form.name() + " ist nicht offen");
    }
    if (const Form* const blocker = desktop.blocker(form)) {
        throw CommandError("Vor dem Fenster " + form.name() + " steht " + blocker->name());
    }
}

void require_reachable(const ScriptDesktop& desktop, const Control& control) {
    require_reachable(desktop, control.form());
    if (!control.visible_behind_tabs()) {
        throw CommandError(full_name(control) + " ist nicht sichtbar");
    }
    if (!control.effectively_enabled() || !control.form().Enabled()) {
        throw CommandError(full_name(control) + " ist abgeschaltet");
    }
}

std::string full_name(const Control& control) {
    return control.form().name() + "." + control.name();
}

} // namespace quittika::lookup
