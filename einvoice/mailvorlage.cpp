#include "einvoice/mailvorlage.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kDatei = "\\e_mail_vorlage.txt";
constexpr const char* kBetreff = "Betreff:";

/// Fills each placeholder once: what a value holds is no placeholder.
std::string gefuellt(const std::string& zeile, const Mailwerte& w) {
    const std::pair<const char*, const std::string&> werte[] = {
        {"{Titel}", w.Titel},     {"{Nummer}", w.Nummer}, {"{Datum}", w.Datum}, {"{Betrag}", w.Betrag},
        {"{Faellig}", w.Faellig}, {"{Kunde}", w.Kunde},   {"{Firma}", w.Firma}};
    std::string ergebnis;
    for (std::size_t i = 0; i < zeile.size();) {
        const auto* const wert = std::find_if(std::begin(werte), std::end(werte), [&](const auto& paar) {
            return beginnt_mit(std::string_view(zeile).substr(i), paar.first);
        });
        if (wert == std::end(werte)) {
            ergebnis += zeile[i++];
        } else {
            ergebnis += einzeilig(wert->second);
            i += std::string_view(wert->first).size();
        }
    }
    return ergebnis;
}

} // namespace

std::vector<std::string> MAILVORLAGE() {
    return {"Betreff: {Titel} {Nummer} vom {Datum}",
            "",
            "Sehr geehrte Damen und Herren,",
            "",
            "anbei erhalten Sie {Titel} {Nummer} vom {Datum} über {Betrag}.",
            "",
            "Mit freundlichen Grüßen",
            "{Firma}"};
}

std::vector<std::string> MAILVORLAGE_LESEN(const Programmverzeichnis& verzeichnis) {
    const std::string pfad = verzeichnis.pfad(kDatei);
    try {
        return zeilen_lesen(pfad);
    } catch (const Laufzeitfehler& e) {
        if (e.nummer() != fehler::kDateiFehlt) {
            throw;
        }
    }
    std::vector<std::string> vorlage = MAILVORLAGE();
    try {
        zeilen_ersetzen(pfad, vorlage);
    } catch (const Laufzeitfehler&) { // the mail does not need the file
    }
    return vorlage;
}

Mail MAIL_AUFSETZEN(const std::vector<std::string>& vorlage, const Mailwerte& werte, const std::string& an) {
    Mail mail;
    mail.an = gekuerzt(einzeilig(an));
    auto zeile = vorlage.begin();
    if (zeile != vorlage.end() && beginnt_mit(*zeile, kBetreff)) {
        mail.betreff = gekuerzt(gefuellt(zeile->substr(std::string_view(kBetreff).size()), werte));
        ++zeile;
        if (zeile != vorlage.end() && gekuerzt(*zeile).empty()) {
            ++zeile;
        }
    }
    for (; zeile != vorlage.end(); ++zeile) {
        mail.text += gefuellt(*zeile, werte) + "\n";
    }
    return mail;
}

} // namespace quittika
