#include "tests/stoerung.hpp"

#include <cerrno>
#include <cstdarg>
#include <utility>

#include <fcntl.h>
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

extern "C" {
int echtes_open(const char*, int, ...) __asm__("__real_open");
int echtes_close(int) __asm__("__real_close");
ssize_t echtes_write(int, const void*, size_t) __asm__("__real_write");
ssize_t echtes_read(int, void*, size_t) __asm__("__real_read");
ssize_t echtes_pread(int, void*, size_t, off_t) __asm__("__real_pread");
int echtes_fsync(int) __asm__("__real_fsync");
int echtes_ftruncate(int, off_t) __asm__("__real_ftruncate");
int echtes_rename(const char*, const char*) __asm__("__real_rename");
int echtes_renameat2(int, const char*, int, const char*, unsigned) __asm__("__real_renameat2");

int gestoertes_open(const char* pfad, int art, ...) __asm__("__wrap_open");
int gestoertes_close(int) __asm__("__wrap_close");
ssize_t gestoertes_write(int, const void*, size_t) __asm__("__wrap_write");
ssize_t gestoertes_read(int, void*, size_t) __asm__("__wrap_read");
ssize_t gestoertes_pread(int, void*, size_t, off_t) __asm__("__wrap_pread");
int gestoertes_fsync(int) __asm__("__wrap_fsync");
int gestoertes_ftruncate(int, off_t) __asm__("__wrap_ftruncate");
int gestoertes_rename(const char*, const char*) __asm__("__wrap_rename");
int gestoertes_renameat2(int, const char*, int, const char*, unsigned) __asm__("__wrap_renameat2");

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

ssize_t gestoertes_read(int datei, void* bytes, size_t anzahl) {
    return gestoert("read", [&] { return echtes_read(datei, bytes, anzahl); });
}

ssize_t gestoertes_pread(int datei, void* bytes, size_t anzahl, off_t ab) {
    return gestoert("pread", [&] { return echtes_pread(datei, bytes, anzahl, ab); });
}

int gestoertes_fsync(int datei) {
    return gestoert("fsync", [&] { return echtes_fsync(datei); });
}

int gestoertes_ftruncate(int datei, off_t laenge) {
    return gestoert("ftruncate", [&] { return echtes_ftruncate(datei, laenge); });
}

int gestoertes_rename(const char* alt, const char* neu) {
    return gestoert("rename", [&] { return echtes_rename(alt, neu); });
}

int gestoertes_renameat2(int von, const char* alt, int nach, const char* neu, unsigned art) {
    return gestoert("renameat2", [&] { return echtes_renameat2(von, alt, nach, neu, art); });
}
}
