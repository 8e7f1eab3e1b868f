#include "einvoice/zugferd.hpp"

#include "einvoice/pdfmetadaten.hpp"
#include "platform/laufzeitfehler.hpp"

#include <exception>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace quittika {

namespace {

constexpr const char* kDatei = "factur-x.xml";

std::string eintrag(QPDFObjectHandle liste, const char* name) {
    QPDFObjectHandle wert = liste.isDictionary() ? liste.getKey(name) : QPDFObjectHandle::newNull();
    return wert.isString() ? wert.getUTF8Value() : std::string();
}

Pdfangaben angaben(QPDF& pdf) {
    QPDFObjectHandle info = pdf.getTrailer().getKey("/Info");
    return {eintrag(info, "/Title"), eintrag(info, "/Author"), eintrag(info, "/Creator"),
            eintrag(info, "/Producer"), eintrag(info, "/CreationDate")};
}

void metadaten_setzen(QPDF& pdf, const Pdfangaben& angaben) {
    QPDFObjectHandle metadaten = pdf.newStream(PDF_METADATEN(angaben));
    metadaten.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
    metadaten.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
    pdf.getRoot().replaceKey("/Metadata", metadaten);
    QPDFObjectHandle info = pdf.getTrailer().getKey("/Info");
    if (info.isDictionary() && !angaben.zeit.empty()) { // both must say the same
        info.replaceKey("/ModDate", QPDFObjectHandle::newString(angaben.zeit));
    }
}

void anhaengen(QPDF& pdf, const std::string& xml, const std::string& zeit) {
    auto inhalt = QPDFEFStreamObjectHelper::createEFStream(pdf, xml);
    inhalt.setSubtype("text/xml").setCreationDate(zeit).setModDate(zeit);
    auto datei = QPDFFileSpecObjectHelper::createFileSpec(pdf, kDatei, inhalt);
    datei.setDescription("Rechnungsdaten (EN 16931)");
    QPDFObjectHandle eigenschaften = datei.getObjectHandle();
    eigenschaften.replaceKey("/AFRelationship", QPDFObjectHandle::newName("/Alternative"));
    QPDFEmbeddedFileDocumentHelper(pdf).replaceEmbeddedFile(kDatei, datei);
    pdf.getRoot().replaceKey("/AF", QPDFObjectHandle::newArray(std::vector<QPDFObjectHandle>{eigenschaften}));
}

/// Archives want pictures as they are.
void bilder_unverfaelscht(QPDF& pdf) {
    for (QPDFObjectHandle objekt : pdf.getAllObjects()) {
        if (objekt.isStream() && objekt.getDict().getKey("/Subtype").isNameAndEquals("/Image")) {
            objekt.getDict().removeKey("/Interpolate");
        }
    }
}

std::string geschrieben(QPDF& pdf) {
    QPDFWriter schreiber(pdf);
    schreiber.setOutputMemory();
    schreiber.setMinimumPDFVersion("1.7");
    schreiber.setDeterministicID(true);
    schreiber.setNewlineBeforeEndstream(true);
    schreiber.write();
    const std::shared_ptr<Buffer> bytes = schreiber.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

} // namespace

std::string ZUGFERD(const std::string& pdf, const std::string& xml) {
    try {
        QPDF dokument;
        dokument.setSuppressWarnings(true);
        dokument.processMemoryFile("pdf", pdf.data(), pdf.size());
        if (!dokument.getRoot().hasKey("/OutputIntents")) {
            throw Laufzeitfehler(fehler::kUngueltigerAufruf, "OutputIntents");
        }
        const Pdfangaben ueber = angaben(dokument);
        metadaten_setzen(dokument, ueber);
        anhaengen(dokument, xml, ueber.zeit);
        bilder_unverfaelscht(dokument);
        return geschrieben(dokument);
    } catch (const Laufzeitfehler&) {
        throw;
    } catch (const std::exception& e) { // what the library throws
        throw Laufzeitfehler(fehler::kUngueltigerAufruf, e.what());
    }
}

} // namespace quittika
