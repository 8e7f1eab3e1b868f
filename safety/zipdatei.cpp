#include "safety/zipdatei.hpp"

#include "safety/zipstrom.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include <sys/stat.h>

namespace quittika {

namespace {

constexpr zip_uint16_t kZeitfeld = 0x5455; ///< extra field: flags, then seconds since 1970, lowest byte first
constexpr std::size_t kZeitfeldlaenge = 5;
constexpr std::size_t kStueck = 65536;

[[noreturn]] void beschaedigt() {
    throw Sicherungsfehler("Die Datei ist keine Datensicherung von Quittika oder beschädigt.");
}

struct Archivende {
    void operator()(zip_t* archiv) const { zip_discard(archiv); }
};
using Archiv = std::unique_ptr<zip_t, Archivende>;

struct Inhaltsende {
    void operator()(zip_file_t* offen) const { zip_fclose(offen); }
};

/// An archive in a file. `art`: how libzip is to open it.
Archiv oeffnen(Archivstrom& strom, int art) {
    zip_source_t* quelle = strom.quelle();
    zip_error_t fehler;
    zip_error_init(&fehler);
    Archiv archiv(quelle == nullptr ? nullptr : zip_open_from_source(quelle, art, &fehler));
    const bool zweimal = zip_error_code_zip(&fehler) == ZIP_ER_EXISTS;
    zip_error_fini(&fehler);
    if (archiv == nullptr) {
        zip_source_free(quelle);
        strom.ausnahme_werfen();
        if (zweimal) {
            throw Sicherungsfehler("Diese Datei wird nicht zurückgespielt: sie enthält einen Namen zweimal.");
        }
        beschaedigt();
    }
    return archiv;
}

std::uint64_t zahl(std::string_view bytes, std::size_t stelle, std::size_t laenge) {
    std::uint64_t wert = 0;
    for (std::size_t i = laenge; i-- > 0;) {
        wert = wert << 8U | static_cast<unsigned char>(bytes.at(stelle + i));
    }
    return wert;
}

/// The end record of an archive as libzip looks for it: it stands, marked, in the last bytes of the file.
constexpr std::size_t kEndsatz = 22;
constexpr std::string_view kEndmarke{"PK\5\6", 4};
constexpr std::size_t kWegweiser = 20; ///< stands in front of it where numbers are large
constexpr std::string_view kWegweisermarke{"PK\6\7", 4};
constexpr std::size_t kGrossersatz = 56; ///< where that leads

/// What an end record promises.
struct Versprechen {
    std::uint64_t dateien;
    std::uint64_t liste; ///< length of the list of files in bytes
};

Versprechen versprochen(const Datei& datei, std::string_view ende, std::size_t stelle) {
    const Versprechen klein{std::max(zahl(ende, stelle + 8, 2), zahl(ende, stelle + 10, 2)),
                            zahl(ende, stelle + 12, 4)};
    if (stelle < kWegweiser || ende.substr(stelle - kWegweiser, 4) != kWegweisermarke) {
        return klein;
    }
    const std::uint64_t ort = zahl(ende, stelle - kWegweiser + 8, 8);
    if (ort >= static_cast<std::uint64_t>(datei.auskunft().st_size)) {
        beschaedigt();
    }
    std::string gross(kGrossersatz, '\0');
    gross.resize(datei.lesen_ab(ort, gross.data(), gross.size()));
    return gross.size() < kGrossersatz
               ? klein
               : Versprechen{std::max(zahl(gross, 24, 8), zahl(gross, 32, 8)), zahl(gross, 40, 8)};
}

/// libzip takes memory for as many files as the archive promises, and reads the list of files once more for
/// each end record: both have to be looked at before.
void ende_pruefen(const Datei& datei) {
    constexpr std::size_t kSuchweite = kEndsatz + 0xFFFF + kWegweiser;
    constexpr std::uint64_t kLaengsteListe = 16U << 20U; // bytes
    constexpr int kHoechstensEnden = 3;                  // bytes of a file that look like one
    const auto groesse = static_cast<std::uint64_t>(datei.auskunft().st_size);
    const std::uint64_t anfang = groesse - std::min<std::uint64_t>(groesse, kSuchweite);
    std::string ende(groesse - anfang, '\0');
    ende.resize(datei.lesen_ab(anfang, ende.data(), ende.size()));
    int enden = 0;
    for (std::size_t i = ende.find(kEndmarke); i != std::string::npos; i = ende.find(kEndmarke, i + 1)) {
        if (i + kEndsatz > ende.size()) {
            break;
        }
        if (++enden > kHoechstensEnden) {
            beschaedigt();
        }
        const Versprechen versprechen = versprochen(datei, ende, i);
        if (versprechen.dateien > kZipHoechstens || std::min(versprechen.liste, groesse) > kLaengsteListe) {
            throw Sicherungsfehler("Die Datei enthält zu viele Dateien: eine Datensicherung von Quittika hat "
                                   "höchstens 100.000.");
        }
    }
    if (enden == 0) {
        beschaedigt();
    }
}

std::int64_t zeit_von(zip_t* archiv, zip_uint64_t nummer, const zip_stat_t& stand) {
    zip_uint16_t laenge = 0;
    const zip_uint8_t* feld =
        zip_file_extra_field_get_by_id(archiv, nummer, kZeitfeld, 0, &laenge, ZIP_FL_CENTRAL);
    if (feld != nullptr && laenge >= kZeitfeldlaenge && (feld[0] & 1U) != 0) {
        return static_cast<std::int64_t>(zahl({reinterpret_cast<const char*>(feld), laenge}, 1, 4));
    }
    return (stand.valid & ZIP_STAT_MTIME) != 0 ? stand.mtime : 0;
}

bool ist_gewoehnlich(zip_t* archiv, zip_uint64_t nummer, const zip_stat_t& stand) {
    zip_uint8_t system = 0;
    zip_uint32_t merkmale = 0;
    if (zip_file_get_external_attributes(archiv, nummer, 0, &system, &merkmale) != 0) {
        return false;
    }
    const mode_t art = (merkmale >> 16U) & S_IFMT;
    const bool datei = art == 0 || art == S_IFREG || art == S_IFDIR;
    return datei && stand.encryption_method == ZIP_EM_NONE &&
           (stand.comp_method == ZIP_CM_STORE || stand.comp_method == ZIP_CM_DEFLATE);
}

Zipeintrag eintrag_von(zip_t* archiv, zip_uint64_t nummer) {
    constexpr zip_uint64_t kNoetig = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD;
    zip_stat_t stand;
    const char* name = zip_get_name(archiv, nummer, ZIP_FL_ENC_GUESS);
    if (name == nullptr || zip_stat_index(archiv, nummer, 0, &stand) != 0 ||
        (stand.valid & kNoetig) != kNoetig) {
        beschaedigt();
    }
    return {name, stand.size, stand.comp_size, zeit_von(archiv, nummer, stand),
            ist_gewoehnlich(archiv, nummer, stand)};
}

/// DOS times have steps of two seconds and no zone: the exact one stands beside it.
void zeit_vermerken(zip_t* archiv, zip_uint64_t nummer, std::int64_t zeit) {
    if (zeit < 0 || zeit > 0xFFFFFFFFLL) {
        return;
    }
    std::array<zip_uint8_t, kZeitfeldlaenge> feld{1};
    for (std::size_t i = 1; i < feld.size(); ++i) {
        feld.at(i) = static_cast<zip_uint8_t>(zeit >> (8 * (i - 1)));
    }
    zip_file_extra_field_set(archiv, nummer, kZeitfeld, ZIP_EXTRA_FIELD_NEW, feld.data(), feld.size(),
                             ZIP_FL_LOCAL | ZIP_FL_CENTRAL);
}

} // namespace

struct Zipleser::Teile {
    explicit Teile(const Datei& datei) : strom(datei) {
        ende_pruefen(datei);
        archiv = oeffnen(strom, ZIP_RDONLY | ZIP_CHECKCONS);
        const zip_int64_t anzahl = zip_get_num_entries(archiv.get(), 0);
        eintraege.reserve(static_cast<std::size_t>(anzahl));
        for (zip_int64_t i = 0; i < anzahl; ++i) {
            eintraege.push_back(eintrag_von(archiv.get(), static_cast<zip_uint64_t>(i)));
        }
    }
    Archivstrom strom;
    Archiv archiv;
    std::vector<Zipeintrag> eintraege;
};

Zipleser::Zipleser(const Datei& datei) : teile_(std::make_unique<Teile>(datei)) {}
Zipleser::Zipleser(Zipleser&&) noexcept = default;
Zipleser& Zipleser::operator=(Zipleser&&) noexcept = default;
Zipleser::~Zipleser() = default;

const std::vector<Zipeintrag>& Zipleser::eintraege() const {
    return teile_->eintraege;
}

void Zipleser::lesen(std::size_t nummer, const std::function<void(std::string_view bytes)>& senke) const {
    const std::uint64_t groesse = eintraege().at(nummer).groesse;
    const std::unique_ptr<zip_file_t, Inhaltsende> offen(zip_fopen_index(teile_->archiv.get(), nummer, 0));
    std::string stueck(kStueck, '\0');
    std::uint64_t summe = 0;
    zip_int64_t gelesen = 1;
    while (offen != nullptr && gelesen > 0) {
        gelesen = zip_fread(offen.get(), stueck.data(), stueck.size());
        summe += gelesen > 0 ? static_cast<std::uint64_t>(gelesen) : 0;
        if (summe > groesse) {
            break;
        }
        if (gelesen > 0) {
            senke({stueck.data(), static_cast<std::size_t>(gelesen)});
        }
    }
    teile_->strom.ausnahme_werfen();
    if (offen == nullptr || gelesen != 0 || summe != groesse) {
        throw Sicherungsfehler("In der Datensicherung ist >>" + eintraege().at(nummer).name +
                               "<< beschädigt.");
    }
}

void ZIP_SCHREIBEN(const Datei& datei, const std::vector<Zipquelle>& quellen,
                   const std::function<void(std::size_t bytes, std::size_t nummer)>& fortschritt) {
    std::vector<std::unique_ptr<Dateistrom>> stroeme; // libzip reads them when it closes
    Archivstrom strom(datei);
    Archiv archiv = oeffnen(strom, ZIP_CREATE | ZIP_TRUNCATE);
    stroeme.reserve(quellen.size());
    for (std::size_t i = 0; i < quellen.size(); ++i) {
        stroeme.push_back(std::make_unique<Dateistrom>(
            quellen[i], [&fortschritt, i](std::size_t bytes) { fortschritt(bytes, i); }));
        zip_source_t* quelle = stroeme.back()->quelle();
        const zip_int64_t nummer =
            zip_file_add(archiv.get(), quellen[i].name.c_str(), quelle, ZIP_FL_ENC_UTF_8);
        if (nummer < 0) {
            zip_source_free(quelle);
            throw Sicherungsfehler("Der Name >>" + quellen[i].name + "<< lässt sich nicht sichern.");
        }
        zeit_vermerken(archiv.get(), static_cast<zip_uint64_t>(nummer), quellen[i].zeit);
    }
    if (zip_close(archiv.get()) == 0) {
        static_cast<void>(archiv.release()); // gone with its close
        return;
    }
    archiv.reset();
    strom.ausnahme_werfen();
    for (const auto& quelle : stroeme) {
        quelle->ausnahme_werfen();
    }
    throw Sicherungsfehler("Die Datensicherung ließ sich nicht schreiben.");
}

} // namespace quittika
