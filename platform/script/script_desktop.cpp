#include "platform/script/script_desktop.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

template <class Windows> auto position(Windows& windows, const Form& form) {
    return std::find_if(windows.begin(), windows.end(), [&form](const auto& w) { return w.form == &form; });
}

} // namespace

ScriptDesktop::~ScriptDesktop() {
    reset();
}

void ScriptDesktop::adopt(Form& form) {
    if (std::find(forms_.begin(), forms_.end(), &form) != forms_.end()) {
        return;
    }
    forms_.push_back(&form);
    form.attach(*this, nullptr);
    timers_.watch(form);
}

void ScriptDesktop::release(Form& form) {
    // The form's controls are gone by now; nothing of them may be touched.
    if (focus_form_ == &form) {
        focus_ = nullptr;
        focus_form_ = nullptr;
    }
    forget_window(form);
    timers_.forget(form);
    std::erase(forms_, &form);
}

void ScriptDesktop::reset() {
    for (Form* form : std::exchange(forms_, {})) {
        timers_.forget(*form);
        form->detach();
    }
    windows_.clear();
    modals_.clear();
    work_.clear();
    focus_ = nullptr;
    focus_form_ = nullptr;
    ended_ = false;
}

void ScriptDesktop::show(Form& form, Modality modality) {
    const std::uint64_t serial = ++opened_;
    if (position(windows_, form) == windows_.end()) {
        windows_.push_back({&form, serial});
    } else {
        raise(form);
    }
    if (modality == Modality::Modeless || !modal_loop_) {
        return;
    }
    modals_.push_back({&form, serial});
    modal_loop_([this, serial] {
        return !ended_ && std::any_of(modals_.begin(), modals_.end(),
                                      [serial](const Window& modal) { return modal.opened == serial; });
    });
    std::erase_if(modals_, [serial](const Window& modal) { return modal.opened == serial; });
}

void ScriptDesktop::hide(Form& form) {
    forget_window(form);
    timers_.update();
    if (focus_form_ == &form) {
        drop_focus();
    }
}

void ScriptDesktop::forget_window(const Form& form) {
    const auto of_form = [&form](const Window& window) { return window.form == &form; };
    std::erase_if(windows_, of_form);
    std::erase_if(modals_, of_form);
}

void ScriptDesktop::raise(Form& form) {
    const auto found = position(windows_, form);
    if (found != windows_.end() && blocker(form) == nullptr) {
        std::rotate(found, found + 1, windows_.end());
    }
}

bool ScriptDesktop::takes_focus(const Control& control) const {
    return control.form().shown() && control.effectively_visible() && control.effectively_enabled();
}

void ScriptDesktop::set_focus(Control& control) {
    const bool held = focus_holder_ != nullptr && focus_holder_ != &control.form();
    if (held || focus_ == &control || !takes_focus(control)) {
        return;
    }
    drop_focus();
    if (focus_ != nullptr || !takes_focus(control)) {
        return; // leaving the former control has decided otherwise
    }
    focus_ = &control;
    focus_form_ = &control.form();
    control.GotFocus();
}

void ScriptDesktop::drop_focus() {
    Control* const former = std::exchange(focus_, nullptr);
    focus_form_ = nullptr;
    if (former != nullptr) {
        former->user_leave();
    }
}

Form* ScriptDesktop::find(std::string_view name) const {
    const auto found = std::find_if(forms_.rbegin(), forms_.rend(),
                                    [name](const Form* form) { return form->name() == name; });
    return found == forms_.rend() ? nullptr : *found;
}

std::vector<Form*> ScriptDesktop::windows() const {
    std::vector<Form*> open;
    for (const Window& window : windows_) {
        open.push_back(window.form);
    }
    return open;
}

bool ScriptDesktop::is_modal(const Form& form) const {
    return position(modals_, form) != modals_.end();
}

const Form* ScriptDesktop::blocker(const Form& form) const {
    const auto window = position(windows_, form);
    if (window == windows_.end()) {
        return nullptr;
    }
    const auto above = std::find_if(modals_.rbegin(), modals_.rend(), [&](const Window& modal) {
        return modal.form != &form && modal.opened > window->opened;
    });
    // A window that was made modal later than the others opened is itself in front of them.
    const auto own = position(modals_, form);
    if (above == modals_.rend() || (own != modals_.end() && own->opened > above->opened)) {
        return nullptr;
    }
    return above->form;
}

void ScriptDesktop::later(std::function<void()> work) {
    if (work) {
        work_.push_back(std::move(work));
    }
}

std::function<void()> ScriptDesktop::take_work() {
    if (work_.empty()) {
        return {};
    }
    std::function<void()> work = std::move(work_.front());
    work_.pop_front();
    return work;
}

} // namespace quittika
