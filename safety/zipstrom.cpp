#include "safety/zipstrom.hpp"

#include "safety/zipdatei.hpp"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>

namespace quittika {

zip_source_t* Zipstrom::quelle() {
    return zip_source_function_create(rufen, this, &fehler_);
}

void Zipstrom::ausnahme_werfen() const {
    if (ausnahme_) {
        std::rethrow_exception(ausnahme_);
    }
}

zip_int64_t Zipstrom::rufen(void* selbst, void* daten, zip_uint64_t laenge, zip_source_cmd_t befehl) {
    auto& strom = *static_cast<Zipstrom*>(selbst);
    if (befehl == ZIP_SOURCE_ERROR) {
        return zip_error_to_data(&strom.fehler_, daten, laenge);
    }
    try {
        return strom.antworten(daten, laenge, befehl);
    } catch (...) {
        strom.ausnahme_ = std::current_exception();
        zip_error_set(&strom.fehler_, ZIP_ER_INTERNAL, 0);
        return -1;
    }
}

zip_int64_t Archivstrom::springen(void* daten, zip_uint64_t laenge, zip_uint64_t& stelle) {
    const zip_int64_t neu = zip_source_seek_compute_offset(stelle, groesse_, daten, laenge, fehler());
    if (neu < 0) {
        return -1;
    }
    stelle = static_cast<zip_uint64_t>(neu);
    return 0;
}

zip_int64_t Archivstrom::antworten(void* daten, zip_uint64_t laenge, zip_source_cmd_t befehl) {
    switch (befehl) {
    case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(
            ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR,
            ZIP_SOURCE_FREE, ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL, ZIP_SOURCE_SUPPORTS, ZIP_SOURCE_BEGIN_WRITE,
            ZIP_SOURCE_COMMIT_WRITE, ZIP_SOURCE_ROLLBACK_WRITE, ZIP_SOURCE_SEEK_WRITE, ZIP_SOURCE_TELL_WRITE,
            ZIP_SOURCE_REMOVE, ZIP_SOURCE_WRITE, -1);
    case ZIP_SOURCE_OPEN:
        lesen_ = 0;
        return 0;
    case ZIP_SOURCE_BEGIN_WRITE:
        schreiben_ = 0;
        return 0;
    case ZIP_SOURCE_STAT: {
        auto& stand = *static_cast<zip_stat_t*>(daten);
        zip_stat_init(&stand);
        stand.size = groesse_;
        stand.valid |= ZIP_STAT_SIZE;
        return sizeof stand;
    }
    case ZIP_SOURCE_READ: {
        const std::size_t gelesen = datei_.lesen_ab(lesen_, static_cast<char*>(daten), laenge);
        lesen_ += gelesen;
        return static_cast<zip_int64_t>(gelesen);
    }
    case ZIP_SOURCE_WRITE:
        datei_.schreiben_ab(schreiben_, {static_cast<const char*>(daten), laenge});
        schreiben_ += laenge;
        groesse_ = std::max(groesse_, schreiben_);
        return static_cast<zip_int64_t>(laenge);
    case ZIP_SOURCE_SEEK:
        return springen(daten, laenge, lesen_);
    case ZIP_SOURCE_SEEK_WRITE:
        return springen(daten, laenge, schreiben_);
    case ZIP_SOURCE_TELL:
        return static_cast<zip_int64_t>(lesen_);
    case ZIP_SOURCE_TELL_WRITE:
        return static_cast<zip_int64_t>(schreiben_);
    default: // to close, to keep and to take back is the owner's business
        return 0;
    }
}

void Dateistrom::auskunft(zip_stat_t& ziel) const {
    zip_stat_init(&ziel);
    ziel.size = quelle_.groesse;
    ziel.mtime = quelle_.zeit;
    ziel.valid |= ZIP_STAT_SIZE | ZIP_STAT_MTIME;
}

zip_int64_t Dateistrom::lesen(char* ziel, zip_uint64_t laenge) {
    std::size_t gelesen = 0;
    if (datei_ != nullptr) {
        gelesen = datei_->lesen_ab(stelle_, ziel, laenge);
    } else {
        gelesen = std::min<std::size_t>(laenge, quelle_.inhalt.size() - stelle_);
        quelle_.inhalt.copy(ziel, gelesen, stelle_);
    }
    stelle_ += gelesen;
    gelesen_(gelesen);
    return static_cast<zip_int64_t>(gelesen);
}

zip_int64_t Dateistrom::antworten(void* daten, zip_uint64_t laenge, zip_source_cmd_t befehl) {
    switch (befehl) {
    case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                              ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, -1);
    case ZIP_SOURCE_OPEN:
        stelle_ = 0;
        if (!quelle_.ort.empty()) {
            datei_ = std::make_unique<Datei>(quelle_.ort, O_RDONLY | O_NONBLOCK);
            if (!S_ISREG(datei_->auskunft().st_mode)) {
                scheitern(EISDIR, quelle_.ort); // changed since it was looked at
            }
        }
        return 0;
    case ZIP_SOURCE_CLOSE:
        datei_.reset();
        return 0;
    case ZIP_SOURCE_STAT:
        auskunft(*static_cast<zip_stat_t*>(daten));
        return sizeof(zip_stat_t);
    case ZIP_SOURCE_READ:
        return lesen(static_cast<char*>(daten), laenge);
    default:
        return 0;
    }
}

} // namespace quittika
