#include "platform/forms/control.hpp"

#include "platform/desktop.hpp"
#include "platform/forms/form.hpp"

namespace quittika {

Control::Control(Container& container, std::string_view name, std::string caption)
    : Caption(*this, PropertyId::Caption, std::move(caption)),
      container_(container),
      form_(container.form()),
      name_(name) {
    form_.add(*this);
}

Control::Control(Container& container, ArrayIndex place, std::string caption)
    : Caption(*this, PropertyId::Caption, std::move(caption)),
      container_(container),
      form_(container.form()),
      name_(std::string(place.name) + "(" + std::to_string(place.index) + ")"),
      index_(place.index) {
    form_.add(*this);
}

Control::~Control() = default;

bool Control::effectively_visible() const {
    for (const Control* c = this; c != nullptr; c = c->container_.container_control()) {
        if (!c->Visible()) {
            return false;
        }
    }
    return true;
}

bool Control::effectively_enabled() const {
    for (const Control* c = this; c != nullptr; c = c->container_.container_control()) {
        if (!c->Enabled()) {
            return false;
        }
    }
    return true;
}

void Control::SetFocus() {
    if (Desktop* desktop = form_.desktop()) {
        desktop->set_focus(*this);
    }
}

void Control::attach(std::unique_ptr<ControlView> view) {
    view_ = std::move(view);
}

void Control::changed(PropertyId id) {
    if (view_) {
        view_->property_changed(id);
    }
    fire_for(id);
}

void Control::notify_items() {
    if (view_) {
        view_->items_changed();
    }
}

} // namespace quittika
