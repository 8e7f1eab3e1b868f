#include "einvoice/pdfmetadaten.hpp"

#include "einvoice/xmltext.hpp"
#include "platform/laufzeitfehler.hpp"

#include <cstddef>
#include <memory>
#include <utility>

#include <libxml/xmlwriter.h>

namespace quittika {

namespace {

constexpr const char* kFx = "urn:factur-x:pdfa:CrossIndustryDocument:invoice:1p0#";

constexpr std::pair<const char*, const char*> kNamensraeume[] = {
    {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
    {"xmlns:xmp", "http://ns.adobe.com/xap/1.0/"},
    {"xmlns:pdf", "http://ns.adobe.com/pdf/1.3/"},
    {"xmlns:pdfaid", "http://www.aiim.org/pdfa/ns/id/"},
    {"xmlns:pdfaExtension", "http://www.aiim.org/pdfa/ns/extension/"},
    {"xmlns:pdfaSchema", "http://www.aiim.org/pdfa/ns/schema#"},
    {"xmlns:pdfaProperty", "http://www.aiim.org/pdfa/ns/property#"},
    {"xmlns:fx", kFx}};

struct Eigenschaft {
    const char* name;
    const char* wert;
    const char* beschreibung;
};

constexpr Eigenschaft kEigenschaften[] = {{"DocumentType", "INVOICE", "Kind of the embedded document"},
                                          {"DocumentFileName", "factur-x.xml", "Name of the embedded file"},
                                          {"Version", "1.0", "Version of the embedded data"},
                                          {"ConformanceLevel", "EN 16931", "Profile of the embedded data"}};

class Schreiber {
public:
    Schreiber() : puffer_(xmlBufferCreate()), schreiber_(xmlNewTextWriterMemory(puffer_.get(), 0)) {
        if (schreiber_ == nullptr) {
            throw Laufzeitfehler(fehler::kSpeicher);
        }
    }

    std::string schreiben(const Pdfangaben& angaben) {
        // Readers find the packet by these marks, whatever lies around it.
        anweisung("begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"");
        oeffnen("x:xmpmeta", {{"xmlns:x", "adobe:ns:meta/"}});
        oeffnen("rdf:RDF", {{"xmlns:rdf", "http://www.w3.org/1999/02/22-rdf-syntax-ns#"}});
        oeffnen("rdf:Description", {{"rdf:about", ""}});
        for (const auto& [name, adresse] : kNamensraeume) {
            attribut(name, adresse);
        }
        text("pdfaid:part", "3");
        text("pdfaid:conformance", "B");
        beschreibung(angaben);
        for (const Eigenschaft& e : kEigenschaften) {
            text((std::string("fx:") + e.name).c_str(), e.wert);
        }
        schema();
        for (int offen = 0; offen < 3; ++offen) {
            schliessen();
        }
        anweisung("end=\"w\"");
        xmlTextWriterFlush(schreiber_.get());
        return {reinterpret_cast<const char*>(xmlBufferContent(puffer_.get())),
                static_cast<std::size_t>(xmlBufferLength(puffer_.get()))};
    }

private:
    using Attribute = std::initializer_list<std::pair<const char*, const char*>>;

    static const xmlChar* xml(const char* text) { return reinterpret_cast<const xmlChar*>(text); }
    void anweisung(const char* inhalt) {
        xmlTextWriterWritePI(schreiber_.get(), xml("xpacket"), xml(inhalt));
        xmlTextWriterWriteString(schreiber_.get(), xml("\n"));
    }
    void attribut(const char* name, const char* wert) {
        xmlTextWriterWriteAttribute(schreiber_.get(), xml(name), xml(wert));
    }
    void oeffnen(const char* name, Attribute attribute = {}) {
        xmlTextWriterStartElement(schreiber_.get(), xml(name));
        for (const auto& [welches, wert] : attribute) {
            attribut(welches, wert);
        }
    }
    void schliessen() { xmlTextWriterEndElement(schreiber_.get()); }
    void text(const char* name, const std::string& wert, Attribute attribute = {}) {
        if (!wert.empty()) {
            oeffnen(name, attribute);
            xmlTextWriterWriteString(schreiber_.get(), xml(XML_TEXT(wert).c_str()));
            schliessen();
        }
    }
    /// A text that stands in a list of one.
    void aufgezaehlt(const char* name, const char* liste, const std::string& wert, Attribute attribute) {
        if (!wert.empty()) {
            oeffnen(name);
            oeffnen(liste);
            text("rdf:li", wert, attribute);
            schliessen();
            schliessen();
        }
    }

    void beschreibung(const Pdfangaben& a) {
        aufgezaehlt("dc:title", "rdf:Alt", a.titel, {{"xml:lang", "x-default"}});
        aufgezaehlt("dc:creator", "rdf:Seq", a.verfasser, {});
        text("xmp:CreatorTool", a.programm);
        text("pdf:Producer", a.erzeuger);
        const std::string zeit = zeitpunkt(a.zeit);
        text("xmp:CreateDate", zeit);
        text("xmp:ModifyDate", zeit);
    }

    /// "D:20261123152355+01'00'" as "2026-11-23T15:23:55+01:00"; empty for anything else.
    static std::string zeitpunkt(const std::string& zeit) {
        constexpr std::size_t kSekunden = 16; // where the zone begins
        if (zeit.size() < kSekunden || zeit.compare(0, 2, "D:") != 0) {
            return {};
        }
        const auto teil = [&zeit](std::size_t ab, std::size_t laenge) { return zeit.substr(ab, laenge); };
        std::string zone = teil(kSekunden, std::string::npos);
        zone = zone.size() < 6 ? "Z" : zone.substr(0, 3) + ":" + zone.substr(4, 2);
        return teil(2, 4) + "-" + teil(6, 2) + "-" + teil(8, 2) + "T" + teil(10, 2) + ":" + teil(12, 2) +
               ":" + teil(14, 2) + zone;
    }

    /// PDF/A knows no properties but its own unless they are described.
    void schema() {
        oeffnen("pdfaExtension:schemas");
        oeffnen("rdf:Bag");
        oeffnen("rdf:li", {{"rdf:parseType", "Resource"}});
        text("pdfaSchema:schema", "Factur-X PDFA Extension Schema");
        text("pdfaSchema:namespaceURI", kFx);
        text("pdfaSchema:prefix", "fx");
        oeffnen("pdfaSchema:property");
        oeffnen("rdf:Seq");
        for (const Eigenschaft& e : kEigenschaften) {
            oeffnen("rdf:li", {{"rdf:parseType", "Resource"}});
            text("pdfaProperty:name", e.name);
            text("pdfaProperty:valueType", "Text");
            text("pdfaProperty:category", "external");
            text("pdfaProperty:description", e.beschreibung);
            schliessen();
        }
        for (int offen = 0; offen < 5; ++offen) {
            schliessen();
        }
    }

    template <auto frei> struct Freigabe {
        template <class T> void operator()(T* was) const { frei(was); }
    };
    std::unique_ptr<xmlBuffer, Freigabe<xmlBufferFree>> puffer_;
    std::unique_ptr<xmlTextWriter, Freigabe<xmlFreeTextWriter>> schreiber_;
};

} // namespace

std::string PDF_METADATEN(const Pdfangaben& angaben) {
    return Schreiber().schreiben(angaben);
}

} // namespace quittika
