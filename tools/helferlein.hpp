#pragma once

#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "tools/form_helferlein.hpp"

#include <array>
#include <string>
#include <string_view>

namespace quittika {

/// Lines that a helper takes over.
inline constexpr std::size_t kHelferzeilen = 4;

/// The first lines of a text, without control characters; empty where the text has less.
std::array<std::string, kHelferzeilen> TEXT_AUFTEILEN(std::string_view text);

/// Works on one of the two helpers' windows.
class Helferlein {
public:
    using Ziel = std::array<TextBox*, kHelferzeilen>;
    Helferlein(Helferform& form, const Ziel& ziel);

private:
    void CMD_Format_Click();
    void Text_Eingabe_Change();
    void Text_Eingabe_Click();

    Helferform& form_;
    Ziel ziel_;
    std::string muster_;
    Color grund_; ///< of the text field at rest
};

/// Shows the helper for the customer until it is closed.
void HELFER_ADRESSE_ZEIGEN(Form1& form1, Desktop& desktop);

/// The same for the text block that is in sight.
void HELFER_TEXT_ZEIGEN(Form1& form1, Desktop& desktop);

} // namespace quittika
