#include "einvoice/cii.hpp"

#include "einvoice/cii_schema.hpp"
#include "einvoice/xmltext.hpp"
#include "platform/laufzeitfehler.hpp"

#include <libxml/parser.h>
#include <libxml/relaxng.h>
#include <libxml/tree.h>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace quittika {

namespace {

constexpr const char* kUn = "urn:un:unece:uncefact:data:standard:";
constexpr const char* kXRechnung = "urn:cen.eu:en16931:2017#compliant#urn:xeinkauf.de:kosit:xrechnung_3.0";
constexpr const char* kEn16931 = "urn:cen.eu:en16931:2017";
constexpr const char* kGeschaeftsprozess = "urn:fdc:peppol.eu:2017:poacc:billing:01:1.0";
constexpr const char* kStueck = "C62";
constexpr const char* kSepa = "58";
constexpr const char* kUeberweisung = "30";

template <auto Freigeben> struct Freigabe {
    template <class T> void operator()(T* zeiger) const { Freigeben(zeiger); }
};
using Dokument = std::unique_ptr<xmlDoc, Freigabe<xmlFreeDoc>>;

const xmlChar* xml(const char* text) {
    return reinterpret_cast<const xmlChar*>(text);
}

template <class T> T* vorhanden(T* zeiger) {
    if (zeiger == nullptr) {
        throw Laufzeitfehler(fehler::kSpeicher);
    }
    return zeiger;
}

std::string jjjjmmtt(const Zeitpunkt& z) {
    constexpr std::size_t kPlatz = 32;
    char text[kPlatz];
    std::snprintf(text, sizeof text, "%04d%02d%02d", z.jahr, z.monat, z.tag);
    return text;
}

/// The four name spaces of a document.
struct Namensraeume {
    xmlNsPtr rsm;
    xmlNsPtr ram;
    xmlNsPtr qdt;
    xmlNsPtr udt;
};

/// An element that is being filled. Names stand in `ram` where no other space is given.
class Element {
public:
    Element(xmlNodePtr knoten, const Namensraeume& raeume) : knoten_(knoten), raeume_(raeume) {}

    Element kind(const char* name) const { return kind(raeume_.ram, name); }
    Element kind(xmlNsPtr raum, const char* name) const {
        return {vorhanden(xmlNewChild(knoten_, raum, xml(name), nullptr)), raeume_};
    }
    Element text(const char* name, const std::string& wert) const { return text(raeume_.ram, name, wert); }
    Element text(xmlNsPtr raum, const char* name, const std::string& wert) const {
        return {vorhanden(xmlNewTextChild(knoten_, raum, xml(name), xml(XML_TEXT(wert).c_str()))), raeume_};
    }
    /// An element that there is only with a text.
    void wahlweise(const char* name, const std::string& wert) const {
        if (!wert.empty()) {
            text(name, wert);
        }
    }
    void attribut(const char* name, const std::string& wert) const {
        vorhanden(xmlNewProp(knoten_, xml(name), xml(XML_TEXT(wert).c_str())));
    }
    void tag(const char* name, const Zeitpunkt& datum) const {
        kind(name).text(raeume_.udt, "DateTimeString", jjjjmmtt(datum)).attribut("format", "102");
    }
    const Namensraeume& raeume() const { return raeume_; }

private:
    xmlNodePtr knoten_;
    const Namensraeume& raeume_;
};

class Schreiber {
public:
    Schreiber(const Rechnungsbeleg& beleg, E_Format format)
        : b_(beleg), xrechnung_(format == E_Format::XRechnung) {}

    void schreiben(const Element& wurzel) const {
        const xmlNsPtr rsm = wurzel.raeume().rsm;
        kontext(wurzel.kind(rsm, "ExchangedDocumentContext"));
        kopf(wurzel.kind(rsm, "ExchangedDocument"));
        const Element geschaeft = wurzel.kind(rsm, "SupplyChainTradeTransaction");
        for (std::size_t i = 0; i < b_.zeilen.size(); ++i) {
            zeile(geschaeft.kind("IncludedSupplyChainTradeLineItem"), b_.zeilen[i], i + 1);
        }
        parteien(geschaeft.kind("ApplicableHeaderTradeAgreement"));
        lieferung(geschaeft.kind("ApplicableHeaderTradeDelivery"));
        abrechnung(geschaeft.kind("ApplicableHeaderTradeSettlement"));
    }

private:
    void kontext(const Element& e) const {
        if (xrechnung_) {
            e.kind("BusinessProcessSpecifiedDocumentContextParameter").text("ID", kGeschaeftsprozess);
        }
        e.kind("GuidelineSpecifiedDocumentContextParameter").text("ID", xrechnung_ ? kXRechnung : kEn16931);
    }

    void kopf(const Element& e) const {
        e.text("ID", b_.nummer);
        e.text("TypeCode", std::to_string(static_cast<int>(b_.art)));
        e.tag("IssueDateTime", b_.datum.value_or(Zeitpunkt{}));
        for (const std::string& hinweis : b_.hinweise) {
            e.kind("IncludedNote").text("Content", hinweis);
        }
    }

    void zeile(const Element& e, const Belegzeile& zeile, std::size_t nummer) const {
        const Element dokument = e.kind("AssociatedDocumentLineDocument");
        dokument.text("LineID", std::to_string(nummer));
        std::string hinweise;
        for (const std::string& hinweis : zeile.hinweise) {
            hinweise += (hinweise.empty() ? "" : "\n") + hinweis;
        }
        if (!hinweise.empty()) {
            dokument.kind("IncludedNote").text("Content", hinweise);
        }
        e.kind("SpecifiedTradeProduct").text("Name", zeile.bezeichnung);
        e.kind("SpecifiedLineTradeAgreement")
            .kind("NetPriceProductTradePrice")
            .text("ChargeAmount", datentext(zeile.einzelpreis));
        e.kind("SpecifiedLineTradeDelivery")
            .text("BilledQuantity", datentext(zeile.menge))
            .attribut("unitCode", kStueck);
        const Element abrechnung = e.kind("SpecifiedLineTradeSettlement");
        steuerart(abrechnung.kind("ApplicableTradeTax"), zeile.steuer);
        abrechnung.kind("SpecifiedTradeSettlementLineMonetarySummation")
            .text("LineTotalAmount", datentext(zeile.betrag));
    }

    static void steuerart(const Element& e, const Steuerart& art) {
        e.text("TypeCode", "VAT");
        e.text("CategoryCode", art.kategorie);
        e.text("RateApplicablePercent", datentext(art.satz));
    }

    void parteien(const Element& e) const {
        e.wahlweise("BuyerReference", b_.kaeufer.Leitweg_ID);
        verkaeufer(e.kind("SellerTradeParty"));
        kaeufer(e.kind("BuyerTradeParty"));
    }

    void verkaeufer(const Element& e) const {
        const Verkaeufer& v = b_.verkaeufer;
        if (v.USt_IdNr.empty()) { // the buyer must be able to tell sellers apart
            e.wahlweise("ID", v.Steuernummer);
        }
        e.text("Name", v.Name);
        if (!v.Kontakt.empty() || !v.Telefon.empty() || !v.E_Mail.empty()) {
            const Element kontakt = e.kind("DefinedTradeContact");
            kontakt.wahlweise("PersonName", v.Kontakt);
            if (!v.Telefon.empty()) {
                kontakt.kind("TelephoneUniversalCommunication").text("CompleteNumber", v.Telefon);
            }
            if (!v.E_Mail.empty()) {
                kontakt.kind("EmailURIUniversalCommunication").text("URIID", v.E_Mail);
            }
        }
        anschrift(e, {v.PLZ, v.Strasse, "", v.Ort, v.Land});
        e_mail(e, v.E_Mail);
        registrierung(e, v.USt_IdNr, "VA");
        registrierung(e, v.Steuernummer, "FC");
    }

    void kaeufer(const Element& e) const {
        const Kaeufer& k = b_.kaeufer;
        e.text("Name", k.Name);
        anschrift(e, {k.PLZ, k.Strasse, k.Zusatz, k.Ort, k.Land});
        e_mail(e, k.E_Mail);
        registrierung(e, k.USt_IdNr, "VA");
    }

    struct Anschrift {
        const std::string& PLZ;
        const std::string& Strasse;
        const std::string& Zusatz;
        const std::string& Ort;
        const std::string& Land;
    };
    static void anschrift(const Element& e, const Anschrift& a) {
        const Element ort = e.kind("PostalTradeAddress");
        ort.wahlweise("PostcodeCode", a.PLZ);
        ort.wahlweise("LineOne", a.Strasse);
        ort.wahlweise("LineTwo", a.Zusatz);
        ort.wahlweise("CityName", a.Ort);
        ort.text("CountryID", a.Land);
    }

    static void e_mail(const Element& e, const std::string& adresse) {
        if (!adresse.empty()) {
            e.kind("URIUniversalCommunication").text("URIID", adresse).attribut("schemeID", "EM");
        }
    }

    static void registrierung(const Element& e, const std::string& nummer, const char* art) {
        if (!nummer.empty()) {
            e.kind("SpecifiedTaxRegistration").text("ID", nummer).attribut("schemeID", art);
        }
    }

    void lieferung(const Element& e) const {
        const bool innergemeinschaftlich =
            std::any_of(b_.steuern.begin(), b_.steuern.end(),
                        [](const Steuergruppe& gruppe) { return gruppe.steuer.kategorie == "K"; });
        if (innergemeinschaftlich) { // the country that the goods went to must be named
            const Kaeufer& k = b_.kaeufer;
            anschrift(e.kind("ShipToTradeParty"), {k.PLZ, k.Strasse, k.Zusatz, k.Ort, k.Land});
        }
        if (b_.lieferdatum) {
            e.kind("ActualDeliverySupplyChainEvent").tag("OccurrenceDateTime", *b_.lieferdatum);
        }
    }

    void abrechnung(const Element& e) const {
        e.text("PaymentReference", b_.nummer);
        e.text("InvoiceCurrencyCode", b_.waehrung);
        if (!b_.verkaeufer.IBAN.empty()) {
            zahlungsweg(e.kind("SpecifiedTradeSettlementPaymentMeans"));
        }
        for (const Steuergruppe& gruppe : b_.steuern) {
            steuergruppe(e.kind("ApplicableTradeTax"), gruppe);
        }
        for (const Nachlass& nachlass : b_.nachlaesse) {
            zu_oder_abschlag(e.kind("SpecifiedTradeAllowanceCharge"), nachlass);
        }
        zahlungsziel(e);
        summen(e.kind("SpecifiedTradeSettlementHeaderMonetarySummation"));
        if (!b_.bezug_nummer.empty()) {
            bezug(e.kind("InvoiceReferencedDocument"));
        }
    }

    void zahlungsweg(const Element& e) const {
        e.text("TypeCode", b_.waehrung == "EUR" ? kSepa : kUeberweisung);
        const Element konto = e.kind("PayeePartyCreditorFinancialAccount");
        konto.text("IBANID", b_.verkaeufer.IBAN);
        konto.wahlweise("AccountName", b_.verkaeufer.Name);
        if (!b_.verkaeufer.BIC.empty()) {
            e.kind("PayeeSpecifiedCreditorFinancialInstitution").text("BICID", b_.verkaeufer.BIC);
        }
    }

    static void steuergruppe(const Element& e, const Steuergruppe& gruppe) {
        e.text("CalculatedAmount", datentext(gruppe.betrag));
        e.text("TypeCode", "VAT");
        e.wahlweise("ExemptionReason", gruppe.grund);
        e.text("BasisAmount", datentext(gruppe.grundlage));
        e.text("CategoryCode", gruppe.steuer.kategorie);
        e.wahlweise("ExemptionReasonCode", gruppe.code);
        e.text("RateApplicablePercent", datentext(gruppe.steuer.satz));
    }

    static void zu_oder_abschlag(const Element& e, const Nachlass& nachlass) {
        e.kind("ChargeIndicator").text(e.raeume().udt, "Indicator", nachlass.zuschlag ? "true" : "false");
        if (nachlass.prozent && nachlass.grundlage) {
            e.text("CalculationPercent", datentext(*nachlass.prozent));
            e.text("BasisAmount", datentext(*nachlass.grundlage));
        }
        e.text("ActualAmount", datentext(nachlass.betrag));
        e.wahlweise("ReasonCode", nachlass.code);
        e.text("Reason", nachlass.grund);
        steuerart(e.kind("CategoryTradeTax"), nachlass.steuer);
    }

    void zahlungsziel(const Element& e) const {
        const Zahlung& z = b_.zahlung;
        if (!z.faellig && !z.skonto) {
            return;
        }
        const Element ziel = e.kind("SpecifiedTradePaymentTerms");
        if (z.skonto) {
            ziel.text("Description", skontotext());
        }
        if (z.faellig) {
            ziel.tag("DueDateDateTime", *z.faellig);
        }
    }

    std::string skontotext() const {
        const std::string tage = std::to_string(b_.zahlung.skontotage);
        if (xrechnung_) {
            return "#SKONTO#TAGE=" + tage + "#PROZENT=" + datentext(*b_.zahlung.skonto) + "#\n";
        }
        return "Bei Zahlung innerhalb von " + tage + " Tagen " + lesetext(*b_.zahlung.skonto) + " % Skonto";
    }

    void summen(const Element& e) const {
        const Belegsummen& s = b_.summen;
        e.text("LineTotalAmount", datentext(s.zeilen));
        e.text("ChargeTotalAmount", datentext(s.zuschlaege));
        e.text("AllowanceTotalAmount", datentext(s.nachlaesse));
        e.text("TaxBasisTotalAmount", datentext(s.netto));
        e.text("TaxTotalAmount", datentext(s.steuer)).attribut("currencyID", b_.waehrung);
        if (s.rundung != Cent{}) {
            e.text("RoundingAmount", datentext(s.rundung));
        }
        e.text("GrandTotalAmount", datentext(s.brutto));
        e.text("DuePayableAmount", datentext(s.zahlbetrag));
    }

    void bezug(const Element& e) const {
        e.text("IssuerAssignedID", b_.bezug_nummer);
        if (b_.bezug_datum) {
            e.kind("FormattedIssueDateTime")
                .text(e.raeume().qdt, "DateTimeString", jjjjmmtt(*b_.bezug_datum))
                .attribut("format", "102");
        }
    }

    const Rechnungsbeleg& b_;
    bool xrechnung_;
};

xmlNsPtr namensraum(xmlNodePtr wurzel, const char* name, const char* vorsatz) {
    const std::string adresse = std::string(kUn) + name + ":100";
    return vorhanden(xmlNewNs(wurzel, xml(adresse.c_str()), xml(vorsatz)));
}

Dokument dokument(const Rechnungsbeleg& beleg, E_Format format) {
    Dokument dokument(vorhanden(xmlNewDoc(xml("1.0"))));
    const xmlNodePtr wurzel = vorhanden(xmlNewNode(nullptr, xml("CrossIndustryInvoice")));
    xmlDocSetRootElement(dokument.get(), wurzel);
    const Namensraeume raeume{namensraum(wurzel, "CrossIndustryInvoice", "rsm"),
                              namensraum(wurzel, "ReusableAggregateBusinessInformationEntity", "ram"),
                              namensraum(wurzel, "QualifiedDataType", "qdt"),
                              namensraum(wurzel, "UnqualifiedDataType", "udt")};
    xmlSetNs(wurzel, raeume.rsm);
    Schreiber(beleg, format).schreiben(Element(wurzel, raeume));
    return dokument;
}

std::string bytes(const Dokument& dokument) {
    xmlChar* text = nullptr;
    int laenge = 0;
    xmlDocDumpFormatMemoryEnc(dokument.get(), &text, &laenge, "UTF-8", 1);
    const std::unique_ptr<xmlChar, Freigabe<[](xmlChar* t) { xmlFree(t); }>> halter(vorhanden(text));
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(laenge)};
}

/// Takes what libxml2 says of an error, which is a pointer to constants in newer versions.
template <class Fehler> void melden(void* ziel, Fehler* fehler) {
    *static_cast<std::string*>(ziel) += "line " + std::to_string(fehler->line) + ": " + fehler->message;
}

std::string schemafehler(xmlDoc* dokument) {
    const std::string schema = CII_SCHEMA();
    const std::unique_ptr<xmlRelaxNGParserCtxt, Freigabe<xmlRelaxNGFreeParserCtxt>> leser(
        vorhanden(xmlRelaxNGNewMemParserCtxt(schema.data(), static_cast<int>(schema.size()))));
    const std::unique_ptr<xmlRelaxNG, Freigabe<xmlRelaxNGFree>> grammatik(
        vorhanden(xmlRelaxNGParse(leser.get())));
    const std::unique_ptr<xmlRelaxNGValidCtxt, Freigabe<xmlRelaxNGFreeValidCtxt>> pruefer(
        vorhanden(xmlRelaxNGNewValidCtxt(grammatik.get())));
    std::string befund;
    xmlRelaxNGSetValidStructuredErrors(pruefer.get(), melden, &befund);
    const int ergebnis = xmlRelaxNGValidateDoc(pruefer.get(), dokument);
    return ergebnis != 0 && befund.empty() ? "invalid" : befund;
}

} // namespace

std::string CII_SCHEMAFEHLER(std::string_view text) {
    const Dokument dokument(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE));
    return dokument == nullptr ? "not well-formed" : schemafehler(dokument.get());
}

std::string CII_XML(const Rechnungsbeleg& beleg, E_Format format) {
    std::string ergebnis = bytes(dokument(beleg, format));
    if (const std::string stelle = CII_SCHEMAFEHLER(ergebnis); !stelle.empty()) {
        throw Laufzeitfehler(fehler::kUngueltigerAufruf, stelle);
    }
    return ergebnis;
}

} // namespace quittika
