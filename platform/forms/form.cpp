#include "platform/forms/form.hpp"

#include "platform/desktop.hpp"

namespace quittika {

Form::Form(std::string_view name, std::string caption)
    : Caption(*this, PropertyId::Caption, std::move(caption)), name_(name) {}

Form::~Form() {
    if (desktop_ != nullptr) {
        desktop_->release(*this);
    }
}

Control* Form::find(std::string_view name) const {
    if (by_name_.size() != controls_.size()) {
        by_name_.clear();
        for (Control* control : controls_) {
            by_name_.emplace(control->name(), control);
        }
    }
    const auto found = by_name_.find(name);
    return found == by_name_.end() ? nullptr : found->second;
}

void Form::attach(Desktop& desktop, std::unique_ptr<ControlView> view) {
    desktop_ = &desktop;
    view_ = std::move(view);
}

void Form::detach() {
    desktop_ = nullptr;
    view_.reset();
}

void Form::ensure_loaded() {
    if (!loaded_) {
        loaded_ = true;
        fire_event(Load);
    }
}

void Form::Show(Modality modality) {
    ensure_loaded();
    shown_ = true;
    if (desktop_ != nullptr) {
        desktop_->show(*this, modality);
    }
}

void Form::Hide() {
    if (!shown_) {
        return;
    }
    shown_ = false;
    if (desktop_ != nullptr) {
        desktop_->hide(*this);
    }
}

bool Form::Close() {
    if (!loaded_) {
        return true;
    }
    bool cancel = false;
    fire_event(QueryUnload, cancel);
    if (cancel) {
        return false;
    }
    loaded_ = false;
    fire_event(Unload);
    Hide();
    return true;
}

void Form::ZOrder() {
    if (desktop_ != nullptr) {
        desktop_->raise(*this);
    }
}

void Form::changed(PropertyId id) {
    if (view_) {
        view_->property_changed(id);
    }
}

} // namespace quittika
