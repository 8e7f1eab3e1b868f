#include "invoice/notiztext.hpp"
#include "platform/text.hpp"
#include "tests/fuzz/verlangen.hpp"
#include "tests/vorlagenmodell.hpp"
#include "tools/helferlein.hpp"

#include <algorithm>
#include <cstdint>

namespace quittika {
namespace {

void notiz_pruefen(const std::string& text) {
    const std::string abgelegt = NOTIZ_ABLEGEN(text);
    verlangen(abgelegt.find_first_of("\r\n") == std::string::npos);
    // What is shown is kept as it was, however often it is shown.
    verlangen(NOTIZ_ABLEGEN(NOTIZ_LESBAR(abgelegt)) == abgelegt);
}

/// Every character that may stay, in its order, as far as four lines go.
void aufteilung_pruefen(const std::string& text) {
    std::array<std::string, kHelferzeilen> erwartet;
    std::size_t zeile = 0;
    for (std::size_t i = 0; i < text.size() && zeile < kHelferzeilen; ++i) {
        const bool zeilenende = text[i] == '\r' || (text[i] == '\n' && (i == 0 || text[i - 1] != '\r'));
        if (zeilenende) {
            ++zeile;
        } else if (static_cast<unsigned char>(text[i]) >= ' ') {
            erwartet.at(zeile) += text[i];
        }
    }
    verlangen(TEXT_AUFTEILEN(text) == erwartet);
}

} // namespace
} // namespace quittika

/// Whatever bytes a template file, a note or a pasted text holds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zeiger, std::size_t anzahl) {
    const std::string bytes(reinterpret_cast<const char*>(zeiger), anzahl);
    quittika::verlangen(quittika::Vorlagenbefund(bytes).empty());
    quittika::notiz_pruefen(bytes);
    quittika::aufteilung_pruefen(bytes);
    return 0;
}
