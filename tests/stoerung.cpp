#include "tests/stoerung.hpp"

#include <cerrno>
#include <cstdarg>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

Stoerung*& aktive() {
    static Stoerung* stoerung = nullptr;
    return stoerung;
}

} // namespace

Stoerung::Stoerung(std::string aufruf, int beim, int art, bool dauernd)
    : aufruf_(std::move(aufruf)), beim_(beim), art_(art), dauernd_(dauernd) {
    aktive() = this;
}

Stoerung::~Stoerung() {
    aktive() = nullptr;
}

int Stoerung::schlaegt_zu(const char* aufruf) {
    Stoerung* s = aktive();
    if (s == nullptr || s->aufruf_ != aufruf) {
        return 0;
    }
    const int jetzt = ++s->gezaehlt_ - s->beim_;
    if (s->art_ == kHalbDannVoll) {
        return jetzt == 0 ? kHalb : jetzt == 1 ? ENOSPC : 0;
    }
    if (jetzt == 0 && s->art_ == kTod) {
        _exit(0);
    }
    return jetzt == 0 || (s->dauernd_ && jetzt > 0) ? s->art_ : 0;
}

} // namespace quittika

namespace {

/// -1 with the error that the call is to fail with, else what it answers.
template <class Aufruf> auto gestoert(const char* name, const Aufruf& aufruf) -> decltype(aufruf()) {
    const int art = quittika::Stoerung::schlaegt_zu(name);
    if (art > 0) {
        errno = art;
        return -1;
    }
    return aufruf();
}

} // namespace

/// Leads a call of the system through `gestoert`; the linker knows its two ends (-Wl,--wrap).
#define UMGELEITET(ergebnis, name, parameter, argumente)                                                     \
    extern "C" ergebnis echtes_##name parameter __asm__("__real_" #name);                                    \
    extern "C" ergebnis gestoertes_##name parameter __asm__("__wrap_" #name);                                \
    ergebnis gestoertes_##name parameter {                                                                   \
        return gestoert(#name, [&] { return echtes_##name argumente; });                                     \
    }

UMGELEITET(ssize_t, read, (int datei, void* bytes, size_t anzahl), (datei, bytes, anzahl))
UMGELEITET(ssize_t, pread, (int datei, void* bytes, size_t anzahl, off_t ab), (datei, bytes, anzahl, ab))
UMGELEITET(int, fsync, (int datei), (datei))
UMGELEITET(int, ftruncate, (int datei, off_t laenge), (datei, laenge))
UMGELEITET(int, link, (const char* alt, const char* neu), (alt, neu))
UMGELEITET(int, unlink, (const char* pfad), (pfad))
UMGELEITET(int, mkdir, (const char* pfad, mode_t rechte), (pfad, rechte))
UMGELEITET(int, rename, (const char* alt, const char* neu), (alt, neu))
UMGELEITET(int, renameat2, (int von, const char* alt, int nach, const char* neu, unsigned art),
           (von, alt, nach, neu, art))

extern "C" {
int echtes_open(const char*, int, ...) __asm__("__real_open");
int gestoertes_open(const char* pfad, int art, ...) __asm__("__wrap_open");
int echtes_close(int) __asm__("__real_close");
int gestoertes_close(int) __asm__("__wrap_close");
ssize_t echtes_write(int, const void*, size_t) __asm__("__real_write");
ssize_t gestoertes_write(int, const void*, size_t) __asm__("__wrap_write");

int gestoertes_open(const char* pfad, int art, ...) {
    va_list weitere;
    va_start(weitere, art);
    const mode_t rechte = (art & O_CREAT) != 0 ? va_arg(weitere, mode_t) : 0;
    va_end(weitere);
    return gestoert("open", [&] { return echtes_open(pfad, art, rechte); });
}

int gestoertes_close(int datei) {
    const int ergebnis = echtes_close(datei); // closed in any case
    return gestoert("close", [&] { return ergebnis; });
}

ssize_t gestoertes_write(int datei, const void* bytes, size_t anzahl) {
    const int art = quittika::Stoerung::schlaegt_zu("write");
    if (art > 0) {
        errno = art;
        return -1;
    }
    return echtes_write(datei, bytes, art == 0 ? anzahl : (anzahl + 1) / 2);
}
}
