#pragma once

#include "invoice/form1.hpp"

#include <string>

namespace quittika::fuzz {

/// What is wrong with the main window, whatever was done to it; empty if nothing is.
std::string Fensterbefund(Form1& f);

/// Where the invoice read from a file differs from the one that was saved; empty if nowhere.
std::string Unterschied(Form1& gespeichert, Form1& gelesen);

} // namespace quittika::fuzz
