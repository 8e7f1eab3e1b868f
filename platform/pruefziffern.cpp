#include "platform/pruefziffern.hpp"

namespace quittika {

int REST_97(std::string_view zeichen) {
    int rest = 0;
    for (const char c : zeichen) {
        const bool ziffer = c >= '0' && c <= '9';
        rest = ziffer ? (rest * 10 + (c - '0')) % 97 : (rest * 100 + (c - 'A' + 10)) % 97;
    }
    return rest;
}

int PRUEFZIFFER_11_10(std::string_view ziffern) {
    int produkt = 10;
    for (const char c : ziffern) {
        const int summe = (c - '0' + produkt) % 10;
        produkt = (summe == 0 ? 10 : summe) * 2 % 11;
    }
    return (11 - produkt) % 10;
}

} // namespace quittika
