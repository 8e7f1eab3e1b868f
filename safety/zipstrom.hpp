#pragma once

#include "platform/dateizugriff.hpp"

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>

#include <zip.h>

namespace quittika {

// What libzip reads and writes goes through the file layer: its errors are the program's own.

/// Ground for the streams: no exception crosses the C library; it waits here and comes out afterwards.
class Zipstrom {
public:
    Zipstrom() { zip_error_init(&fehler_); }
    Zipstrom(const Zipstrom&) = delete;
    Zipstrom& operator=(const Zipstrom&) = delete;
    virtual ~Zipstrom() { zip_error_fini(&fehler_); }

    /// For libzip; null where there is no memory. It lives as long as this.
    zip_source_t* quelle();
    /// Throws what a call has thrown.
    void ausnahme_werfen() const;

protected:
    virtual zip_int64_t antworten(void* daten, zip_uint64_t laenge, zip_source_cmd_t befehl) = 0;
    zip_error_t* fehler() { return &fehler_; }

private:
    static zip_int64_t rufen(void* selbst, void* daten, zip_uint64_t laenge, zip_source_cmd_t befehl);

    zip_error_t fehler_{};
    std::exception_ptr ausnahme_;
};

/// The archive itself, an open file.
class Archivstrom final : public Zipstrom {
public:
    explicit Archivstrom(const Datei& datei)
        : datei_(datei), groesse_(static_cast<zip_uint64_t>(datei.auskunft().st_size)) {}

private:
    zip_int64_t antworten(void* daten, zip_uint64_t laenge, zip_source_cmd_t befehl) override;
    zip_int64_t springen(void* daten, zip_uint64_t laenge, zip_uint64_t& stelle);

    const Datei& datei_;
    zip_uint64_t groesse_;       ///< of the file
    zip_uint64_t lesen_ = 0;     ///< where reading goes on
    zip_uint64_t schreiben_ = 0; ///< where writing goes on
};

struct Zipquelle;

/// A file on its way into an archive; opened only when it is its turn.
class Dateistrom final : public Zipstrom {
public:
    Dateistrom(const Zipquelle& quelle, std::function<void(std::size_t bytes)> gelesen)
        : quelle_(quelle), gelesen_(std::move(gelesen)) {}

private:
    zip_int64_t antworten(void* daten, zip_uint64_t laenge, zip_source_cmd_t befehl) override;
    void auskunft(zip_stat_t& ziel) const;
    zip_int64_t lesen(char* ziel, zip_uint64_t laenge);

    const Zipquelle& quelle_;
    std::function<void(std::size_t bytes)> gelesen_;
    std::unique_ptr<Datei> datei_;
    zip_uint64_t stelle_ = 0;
};

} // namespace quittika
