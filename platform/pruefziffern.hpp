#pragma once

#include <string_view>

namespace quittika {

/// The remainder of the number that digits and capital letters make, letters counting 10 to 35, by 97. Takes
/// no other characters.
int REST_97(std::string_view zeichen);

/// The check digit behind these digits (ISO 7064 MOD 11,10).
int PRUEFZIFFER_11_10(std::string_view ziffern);

} // namespace quittika
