#include "platform/forms/property.hpp"

#include <array>

namespace quittika {

namespace {

constexpr std::array<std::string_view, 28> kNames{
    "Text",        "Value",     "Caption",   "Enabled", "Visible",  "BackColor", "ForeColor",
    "FontBold",    "ListIndex", "ListCount", "Min",     "Max",      "Interval",  "ToolTipText",
    "WindowState", "Left",      "Top",       "Width",   "Height",   "Picture",   "Path",
    "Tab",         "SelStart",  "SelLength", "Locked",  "Modified", "Default",   "OwnLook"};

} // namespace

std::string_view property_name(PropertyId id) {
    return kNames.at(static_cast<std::size_t>(id));
}

std::optional<PropertyId> property_id(std::string_view name) {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        if (kNames[i] == name) {
            return static_cast<PropertyId>(i);
        }
    }
    return std::nullopt;
}

const PropertyBase* PropertyHost::property(PropertyId id) const {
    for (const PropertyBase* p = first_; p != nullptr; p = p->next_) {
        if (p->id() == id) {
            return p;
        }
    }
    return nullptr;
}

void PropertyHost::adopt_values(const PropertyHost& other) {
    const PropertyBase* value = other.first_;
    for (PropertyBase* p = first_; p != nullptr && value != nullptr; p = p->next_, value = value->next_) {
        p->adopt_from(*value);
    }
}

} // namespace quittika
