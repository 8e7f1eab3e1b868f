#include "einvoice/angabendatei.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"

#include <algorithm>
#include <span>

namespace quittika {

namespace {

constexpr const char* kVerkaeuferdatei = "\\e_rechnung.cfg";
constexpr const char* kKundendatei = "\\e_rechnung_kunden.txt";

bool ist_ueberschrift(const std::string& zeile) {
    const std::size_t anfang = zeile.find_first_not_of(' ');
    return anfang != std::string::npos && zeile[anfang] == '[' && zeile[zeile.find_last_not_of(' ')] == ']';
}

std::string ueberschrift(const std::string& zeile) {
    const std::string text = gekuerzt(zeile);
    return gekuerzt(text.substr(1, text.size() - 2));
}

/// A heading of one line that ends where it should.
std::string als_ueberschrift(const std::string& text) {
    const std::string zeile = ersetzen(ersetzen(einzeilig(text), "[", "("), "]", ")");
    return gekuerzt(aus_ansi(nach_ansi(zeile).bytes)); // as it will be read again
}

std::vector<std::string> kopf(const char* inhalt) {
    return {std::string("; ") + inhalt,
            "; Quittika liest sie bei jeder E-Rechnung und ändert nur Zeilen \"Name=Wert\".", ""};
}

Abschnittsdatei datei_lesen(const std::string& pfad, const char* inhalt) {
    try {
        return Abschnittsdatei(zeilen_lesen(pfad));
    } catch (const Laufzeitfehler& e) {
        if (e.nummer() != fehler::kDateiFehlt && e.nummer() != fehler::kPfadFehlt) {
            throw;
        }
        return Abschnittsdatei(kopf(inhalt));
    }
}

template <class T>
T angaben_aus(const Abschnittsdatei& datei, const std::string& abschnitt, std::span<const Angabe<T>> felder) {
    T angaben;
    for (const Angabe<T>& feld : felder) {
        angaben.*feld.wert = datei.wert(abschnitt, feld.name).value_or("");
    }
    return angaben;
}

/// Puts what changed into a file; returns how many characters the code page lacks.
template <class T>
std::size_t merken(const std::string& pfad, const char* inhalt, const std::string& abschnitt,
                   const T& angaben, std::span<const Angabe<T>> felder) {
    Abschnittsdatei datei = datei_lesen(pfad, inhalt);
    const bool neu = !datei.hat(abschnitt);
    bool geaendert = false;
    for (const Angabe<T>& feld : felder) {
        const std::string& wert = angaben.*feld.wert;
        if (neu || datei.wert(abschnitt, feld.name).value_or("") != gekuerzt(einzeilig(wert))) {
            datei.setzen(abschnitt, feld.name, wert);
            geaendert = true;
        }
    }
    return geaendert ? zeilen_ersetzen(pfad, datei.zeilen()) : 0;
}

constexpr const char* kVerkaeuferinhalt = "Angaben des Verkäufers für E-Rechnungen.";
constexpr const char* kKundeninhalt =
    "Angaben der Käufer für E-Rechnungen, je [Kundennummer] oder [Name, Ort].";

} // namespace

std::optional<Abschnittsdatei::Bereich> Abschnittsdatei::bereich(std::string_view abschnitt) const {
    const auto naechste = [this](std::size_t ab) {
        const auto von = zeilen_.begin() + static_cast<std::ptrdiff_t>(ab);
        return static_cast<std::size_t>(std::find_if(von, zeilen_.end(), ist_ueberschrift) - zeilen_.begin());
    };
    if (abschnitt.empty()) {
        return Bereich{0, naechste(0)};
    }
    for (std::size_t i = naechste(0); i < zeilen_.size(); i = naechste(i + 1)) {
        if (ueberschrift(zeilen_[i]) == abschnitt) {
            return Bereich{i + 1, naechste(i + 1)};
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> Abschnittsdatei::stelle(Bereich in, std::string_view name) const {
    for (std::size_t i = in.anfang; i < in.ende; ++i) {
        const std::size_t gleich = zeilen_[i].find('=');
        if (gleich != std::string::npos && gekuerzt(zeilen_[i].substr(0, gleich)) == name) {
            return i;
        }
    }
    return std::nullopt;
}

bool Abschnittsdatei::hat(std::string_view abschnitt) const {
    return bereich(abschnitt).has_value();
}

std::optional<std::string> Abschnittsdatei::wert(std::string_view abschnitt, std::string_view name) const {
    const std::optional<Bereich> in = bereich(abschnitt);
    const std::optional<std::size_t> zeile = in ? stelle(*in, name) : std::nullopt;
    if (!zeile) {
        return std::nullopt;
    }
    const std::string& text = zeilen_[*zeile];
    return gekuerzt(text.substr(text.find('=') + 1));
}

void Abschnittsdatei::setzen(const std::string& abschnitt, const std::string& name, const std::string& wert) {
    if (!hat(abschnitt)) {
        if (!zeilen_.empty() && !gekuerzt(zeilen_.back()).empty()) {
            zeilen_.emplace_back();
        }
        zeilen_.push_back("[" + abschnitt + "]");
    }
    const Bereich in = *bereich(abschnitt);
    const std::string zeile = name + "=" + gekuerzt(einzeilig(wert));
    if (const std::optional<std::size_t> alte = stelle(in, name)) {
        zeilen_[*alte] = zeile;
        return;
    }
    std::size_t ende = in.ende; // blank lines part the sections
    while (ende > in.anfang && gekuerzt(zeilen_[ende - 1]).empty() && in.ende < zeilen_.size()) {
        --ende;
    }
    zeilen_.insert(zeilen_.begin() + static_cast<std::ptrdiff_t>(ende), zeile);
}

std::string KUNDENSCHLUESSEL(const Belegquelle& quelle) {
    if (!quelle.Kundennr.empty()) {
        return als_ueberschrift(quelle.Kundennr);
    }
    const std::string name = gekuerzt(quelle.Kunde[0]);
    const std::string ort = gekuerzt(quelle.Kunde[2]);
    return als_ueberschrift(name.empty() || ort.empty() ? name + ort : name + ", " + ort);
}

Angabenspeicher::Angabenspeicher(const Programmverzeichnis& verzeichnis)
    : verkaeuferpfad_(verzeichnis.pfad(kVerkaeuferdatei)), kundenpfad_(verzeichnis.pfad(kKundendatei)) {}

Verkaeufer Angabenspeicher::verkaeufer() const {
    return angaben_aus(datei_lesen(verkaeuferpfad_, kVerkaeuferinhalt), "", VERKAEUFERANGABEN());
}

std::size_t Angabenspeicher::verkaeufer_merken(const Verkaeufer& angaben) const {
    return merken(verkaeuferpfad_, kVerkaeuferinhalt, "", angaben, VERKAEUFERANGABEN());
}

std::optional<Kaeufer> Angabenspeicher::kaeufer(const std::string& schluessel) const {
    if (schluessel.empty()) {
        return std::nullopt;
    }
    const Abschnittsdatei datei = datei_lesen(kundenpfad_, kKundeninhalt);
    if (!datei.hat(schluessel)) {
        return std::nullopt;
    }
    return angaben_aus(datei, schluessel, KAEUFERANGABEN());
}

std::size_t Angabenspeicher::kaeufer_merken(const std::string& schluessel, const Kaeufer& angaben) const {
    if (schluessel.empty()) {
        return 0;
    }
    return merken(kundenpfad_, kKundeninhalt, schluessel, angaben, KAEUFERANGABEN());
}

} // namespace quittika
