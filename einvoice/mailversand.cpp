#include "einvoice/mailversand.hpp"

#include "einvoice/erkennung.hpp"
#include "invoice/belegtexte.hpp"
#include "platform/datei.hpp"
#include "platform/dateiname.hpp"
#include "print/ausgabedatei.hpp"
#include "print/dokumentnamen.hpp"
#include "tools/dokument_oeffnen.hpp"

#include <filesystem>
#include <system_error>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kOrdner = "\\E-Mail";
constexpr const char* kTitel = "Per E-Mail senden";

} // namespace

Mailversand::Mailversand(Form1& form1, const frm_einstellungen& einstellungen, E_Rechnungsausgabe& ausgabe,
                         Pdfausgabe& pdfausgabe, const Lieferscheinoptionen& lieferscheinoptionen,
                         const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Shell& shell,
                         std::function<void()> vor_der_ausgabe)
    : form1_(form1),
      einstellungen_(einstellungen),
      ausgabe_(ausgabe),
      pdfausgabe_(pdfausgabe),
      lieferscheinoptionen_(lieferscheinoptionen),
      verzeichnis_(verzeichnis),
      dialogs_(dialogs),
      shell_(shell),
      vor_der_ausgabe_(std::move(vor_der_ausgabe)) {}

void Mailversand::m_Mail_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (LAYOUT_GEWAEHLT(einstellungen_) == 0) {
        form1_.Hinweise.melden("Es ist kein Layout gewählt, deshalb gibt es nichts zu senden.");
        return;
    }
    vor_der_ausgabe_();
    const std::optional<Grundlage> grundlage = lesen();
    if (!grundlage) {
        return;
    }
    try {
        const std::string pfad = anhang();
        anhang_schreiben(pfad, grundlage->rechnung);
        uebergeben(mail(*grundlage), pfad);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            dialogs_.message({E_RECHNUNGSHINDERNIS(fehler), kTitel, Buttons::Ok, Symbol::Exclamation});
        }
    }
}

/// Nothing where a file cannot be read; a box says why.
std::optional<Mailversand::Grundlage> Mailversand::lesen() const {
    try {
        return Grundlage{ausgabe_.BESTAETIGTE_RECHNUNG(E_Format::ZUGFeRD), MAILVORLAGE_LESEN(verzeichnis_)};
    } catch (const Laufzeitfehler& fehler) {
        dialogs_.message({ANGABENHINDERNIS(fehler), kTitel, Buttons::Ok, Symbol::Exclamation});
        return std::nullopt;
    }
}

/// Path of the file to be sent; its folder is there.
std::string Mailversand::anhang() const {
    const std::string ordner = systempfad(verzeichnis_.pfad(kOrdner));
    std::error_code unbekannt;
    std::filesystem::create_directories(ordner, unbekannt); // writing tells what is wrong
    return ordner + "/" + DATEINAME_BEREINIGEN(PDFNAME_VORSCHLAGEN(form1_, einstellungen_));
}

void Mailversand::anhang_schreiben(const std::string& pfad, const E_Rechnung& rechnung) {
    if (rechnung.vollstaendig()) {
        datei_ersetzen(pfad, ausgabe_.ZUGFERD_PDF(rechnung.beleg));
        form1_.Hinweise.melden("Im Anhang ist eine E-Rechnung (ZUGFeRD).");
        return;
    }
    pdfausgabe_.SCHREIBEN(pfad, {lieferscheinoptionen_.check_LIEFERSCHEIN_PRINT()});
    if (!IST_LIEFERSCHEIN(form1_)) {
        form1_.Hinweise.melden(
            "Der Anhang ist ein einfaches PDF: Was zur E-Rechnung fehlt, zeigt \"E-Rechnung...\" "
            "im Menü Datei.");
    }
}

Mail Mailversand::mail(const Grundlage& grundlage) const {
    const Belegquelle quelle = ausgabe_.quelle();
    const Rechnungsbeleg& beleg = grundlage.rechnung.beleg;
    const std::string an =
        beleg.kaeufer.E_Mail.empty() ? KAEUFER_VORSCHLAG(quelle).E_Mail : beleg.kaeufer.E_Mail;
    const std::string firma = beleg.verkaeufer.Name.empty() ? quelle.Firma[0] : beleg.verkaeufer.Name;
    const Mailwerte werte{quelle.Titel,
                          quelle.Nummer,
                          quelle.Datum,
                          quelle.Gesamtbetrag + " " + quelle.Waehrung,
                          beleg.zahlung.faellig ? datum_text(*beleg.zahlung.faellig) : std::string(),
                          quelle.Kunde[0],
                          firma};
    return MAIL_AUFSETZEN(grundlage.vorlage, werte, an);
}

void Mailversand::uebergeben(const Mail& mail, const std::string& pfad) {
    try {
        shell_.mail({mail.an, mail.betreff, mail.text, pfad});
    } catch (const Laufzeitfehler&) {
        dialogs_.message(
            {"Es ist kein E-Mail-Programm eingerichtet. Die Datei zum Anhängen liegt hier: " + pfad, kTitel,
             Buttons::Ok, Symbol::Information});
        DOKUMENT_OEFFNEN(std::filesystem::path(pfad).parent_path().string(), shell_, dialogs_);
    }
}

} // namespace quittika
