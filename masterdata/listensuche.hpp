#pragma once

#include "platform/forms/controls.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// The search field over a list. Typing selects the first item that holds the text anywhere, whatever its
/// case and the spelling of umlauts; Return and F3 go to the next one, the arrow keys move the selection.
class Listensuche {
public:
    /// `befund` tells when nothing is found.
    Listensuche(TextBox& feld, ListBox& liste, Label& befund);

    /// The next item that holds the text, from the top again behind the last one.
    void weitersuchen();

private:
    void Text_suchen_Change();
    void bewegen(int schritt);
    void waehlen(std::string_view gesucht, int ab);
    int finden(std::string_view gesucht, int ab);
    void auffrischen();

    TextBox& feld_;
    ListBox& liste_;
    Label& befund_;
    std::string gefaltet_; ///< all items as they are compared, each with a line end behind it
    std::vector<std::size_t> anfaenge_;
    std::uint64_t stand_ = ~std::uint64_t{0}; ///< of the list, when it was folded
};

} // namespace quittika
