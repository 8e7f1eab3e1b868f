#include "platform/forms/form_copy.hpp"

#include "platform/forms/controls.hpp"

#include <cstddef>

namespace quittika {

void copy_controls(const Form& from, Form& to) {
    for (std::size_t i = 0; i < to.controls().size(); ++i) {
        const Control& source = *from.controls().at(i);
        Control& target = *to.controls()[i];
        const auto* items = dynamic_cast<const ListBox*>(&source);
        auto* list = dynamic_cast<ListBox*>(&target);
        if (list != nullptr && items != nullptr && list->items() != items->items()) {
            list->assign(items->items());
        }
        target.adopt_values(source);
    }
}

} // namespace quittika
