#include "platform/forms/opened_window.hpp"

#include <algorithm>

namespace quittika {

WindowLives::~WindowLives() {
    for (const Life& life : lives_) {
        life.form->activity().when_idle({});
    }
}

std::shared_ptr<void> WindowLives::open() const {
    return lives_.empty() || !lives_.back().form->loaded() ? nullptr : lives_.back().parts;
}

void WindowLives::bring_to_front() const {
    Form& form = *lives_.back().form;
    if (form.WindowState() == window_state::kMinimised) {
        form.WindowState = window_state::kNormal;
    }
    form.Show();
}

void WindowLives::begin(Form& form, std::shared_ptr<void> parts) {
    lives_.push_back({&form, std::move(parts)});
    desktop_.adopt(form);
    try {
        form.Show();
    } catch (...) {
        std::erase_if(lives_, [&form](const Life& life) { return life.form == &form; });
        throw;
    }
    form.activity().when_idle([this, &form] { end_later(form); });
    end_later(form); // loading may have closed it
}

void WindowLives::end_later(const Form& form) {
    if (!form.loaded()) {
        desktop_.later([this, alive = std::weak_ptr(alive_), form = &form] {
            if (!alive.expired()) {
                end(form);
            }
        });
    }
}

void WindowLives::end(const Form* form) {
    const auto found =
        std::find_if(lives_.begin(), lives_.end(), [form](const Life& life) { return life.form == form; });
    if (found == lives_.end() || found->form->loaded() || !found->form->activity().idle()) {
        return; // gone already, opened again, or still at work
    }
    const Life last = std::move(*found);
    lives_.erase(found);
    last.form->activity().when_idle({});
}

} // namespace quittika
