#pragma once

#include "invoice/form1.hpp"

#include <array>

namespace quittika {

/// The fields of the customer in the order in which lists and files hold them; those of a constant form are
/// constant, too.
template <class F> auto KUNDENFELDER(F& form1) {
    return std::array{&form1.Text_Kunde_1, &form1.Text_Kunde_2, &form1.Text_Kunde_3, &form1.Text_Kunde_4,
                      &form1.Text_KundennrK};
}

} // namespace quittika
