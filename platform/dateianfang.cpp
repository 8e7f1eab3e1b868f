#include "platform/dateianfang.hpp"

#include "platform/dateizugriff.hpp"
#include "platform/laufzeitfehler.hpp"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace quittika {

namespace {

constexpr std::size_t kErstesStueck =
    4096; // bytes; holds the fields of most invoices, the next is twice as large

} // namespace

void Dateianfang::lesen(const std::string& ort, const std::function<bool(std::string_view bytes)>& genug) {
    const Datei datei(ort, O_RDONLY | O_NONBLOCK); // a pipe without a writer must not hold the program
    if (!S_ISREG(datei.auskunft().st_mode)) {
        scheitern(EISDIR, ort);
    }
    std::size_t laenge = 0;
    std::size_t ziel = kErstesStueck;
    while (true) {
        if (puffer_.size() < ziel) {
            puffer_.resize(ziel);
        }
        const ssize_t gelesen = read(datei.nummer(), puffer_.data() + laenge, ziel - laenge);
        if (gelesen < 0 && errno == EINTR) {
            continue;
        }
        if (gelesen < 0) {
            scheitern(errno, ort);
        }
        laenge += static_cast<std::size_t>(gelesen);
        if (genug({puffer_.data(), laenge}) || gelesen == 0) {
            return;
        }
        if (laenge == ziel) {
            if (ziel >= kHoechstens) {
                throw Laufzeitfehler(fehler::kSpeicher, ort);
            }
            ziel *= 2;
        }
    }
}

} // namespace quittika
