#include "platform/forms/control.hpp"

#include "platform/desktop.hpp"
#include "platform/forms/form.hpp"
#include "platform/laufzeitfehler.hpp"

namespace quittika {

namespace {

std::string full_name(const Named& named) {
    const std::string name(named.name);
    return named.index < 0 ? name : name + "(" + std::to_string(named.index) + ")";
}

} // namespace

Control::Control(Container& container, const Named& named, std::string caption)
    : container_(container),
      form_(container.form()),
      activity_(form_.activity()),
      Caption(*this, PropertyId::Caption, std::move(caption)),
      name_(full_name(named)),
      index_(named.index),
      placing_(named.placing),
      shown_(named.shown) {
    Visible.adopt(named.shown);
    Left.adopt(named.place.left);
    Top.adopt(named.place.top);
    Width.adopt(named.place.width);
    Height.adopt(named.place.height);
    form_.add(*this);
}

Control::~Control() = default;

bool Control::visible_behind_tabs() const {
    for (const Control* c = this; c != nullptr; c = c->container_.container_control()) {
        if (!c->Visible()) {
            return false;
        }
    }
    return true;
}

bool Control::effectively_visible() const {
    for (const Control* c = this; c != nullptr; c = c->container_.container_control()) {
        if (!c->container_.in_front()) {
            return false;
        }
    }
    return visible_behind_tabs();
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
    const Activity::Hold here(activity_);
    if (Desktop* desktop = form_.desktop()) {
        desktop->set_focus(*this);
    }
}

void Control::attach(std::unique_ptr<ControlView> view) {
    view_ = std::move(view);
}

bool Control::may_be(PropertyId id, std::int64_t value) const {
    switch (id) {
    case PropertyId::Visible:
        return shown_ || value == 0;
    case PropertyId::Left:
    case PropertyId::Top:
        return placing_ == Placing::Program || placing_ == Placing::Position;
    case PropertyId::Width:
    case PropertyId::Height:
        return placing_ == Placing::Program && value >= 0;
    default:
        return true;
    }
}

void Control::check(PropertyId id, std::int64_t value) const {
    if (!may_be(id, value)) {
        throw Laufzeitfehler(fehler::kEigenschaft, form_.name() + "." + name_);
    }
}

void Control::changed(PropertyId id) {
    if (id == PropertyId::Text || id == PropertyId::Value || id == PropertyId::ListIndex) {
        ++form_.revision_;
    }
    if (view_) {
        view_->property_changed(id);
    }
    fire_for(id);
    form_.ControlChanged(*this);
}

void Control::notify_items() {
    ++form_.revision_;
    if (view_) {
        view_->items_changed();
    }
}

} // namespace quittika
