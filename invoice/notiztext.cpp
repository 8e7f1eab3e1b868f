#include "invoice/notiztext.hpp"

#include "platform/text.hpp"
#include "platform/zeilenenden.hpp"

namespace quittika {

namespace {

constexpr const char* kZeilenwechsel = "#$§$#";

} // namespace

std::string NOTIZ_ABLEGEN(std::string_view text) {
    return ZEILENENDEN_ERSETZEN(text, kZeilenwechsel);
}

std::string NOTIZ_LESBAR(std::string_view notiz) {
    return ersetzen(notiz, kZeilenwechsel, "\r\n");
}

} // namespace quittika
