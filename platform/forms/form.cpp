#include "platform/forms/form.hpp"

#include "platform/desktop.hpp"

#include <utility>

namespace quittika {

Form::Form(std::string_view name, std::string caption, const FormDesign& design)
    : Caption(*this, PropertyId::Caption, std::move(caption)),
      Width(*this, PropertyId::Width, design.width),
      Height(*this, PropertyId::Height, design.height),
      name_(name),
      companion_(design.companion) {}

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
    activity_.join(&desktop.activity());
}

void Form::detach() {
    desktop_ = nullptr;
    view_.reset();
    activity_.join(nullptr);
}

void Form::ensure_loaded() {
    if (!loaded_) {
        loaded_ = true;
        Load();
    }
}

void Form::Show(Modality modality) {
    const Activity::Hold here(activity_);
    ensure_loaded();
    if (!loaded_) {
        return;
    }
    if (!std::exchange(shown_, true)) {
        Shown();
    }
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
    const Activity::Hold here(activity_);
    bool cancel = false;
    QueryUnload(cancel);
    if (cancel) {
        return false;
    }
    loaded_ = false;
    try {
        Unload();
    } catch (...) {
        Hide(); // an unloaded form is not shown, whatever became of its handler
        throw;
    }
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
