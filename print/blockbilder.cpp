#include "print/blockbilder.hpp"

#include "platform/forms/form_copy.hpp"
#include "platform/zahlen.hpp"
#include "print/druckkopf.hpp"
#include "print/druckseiten.hpp"
#include "print/eigene_bloecke.hpp"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace quittika {

namespace {

/// With it, the millimetres of the design are millimetres of the sheet.
constexpr Druckjustierung kAufsBlatt{-static_cast<int>(kOriginLeft), -static_cast<int>(kOriginTop)};
constexpr Color kFarbePlatzhalter = color::rgb(150, 150, 150);
constexpr double kLogorand = 3; ///< mm at its edges in which a logo mostly shows nothing
/// Delivery notes show no prices.
constexpr Druckoptionen kOptionen{.lieferschein = {.preise = false}};

struct Beispielzeile {
    const char* art;
    const char* menge;
    const char* leistung;
    const char* preis;
};
constexpr std::array<Beispielzeile, 4> kBeispielzeilen{{{"-", "1", "Beispiel für eine Leistung", "80,00"},
                                                        {"K", "", "mit einer Zeile Kommentar", ""},
                                                        {"-", "2", "Noch ein Beispiel", "20,00"},
                                                        {"-", "4", "Und noch eines", "5,00"}}};

/// A sheet on which what is drawn can be read back.
struct Zeichenblatt {
    explicit Zeichenblatt(const FontMetrics& metrics, const std::string& schrift)
        : surface(geraet, metrics), blatt{surface, kAufsBlatt} {
        surface.FontName = schrift;
    }

    std::vector<Drawing>& gezeichnet() { return auftrag->pages.front().drawings; }
    /// What was drawn, as a picture whose corner is that place of the sheet.
    DrawnPage ausschnitt(double x, double y, const Paper& groesse) {
        DrawnPage bild{groesse, std::move(gezeichnet()), true};
        for (Drawing& teil : bild.drawings) {
            if (auto* linie = std::get_if<drawn::Line>(&teil)) {
                *linie = {linie->x1 - x, linie->y1 - y, linie->x2 - x, linie->y2 - y, linie->color};
            } else if (auto* text = std::get_if<drawn::Text>(&teil)) {
                text->left -= x;
                text->top -= y;
            }
        }
        return bild;
    }

    std::shared_ptr<RecordedJob> auftrag = std::make_shared<RecordedJob>(PrintDocument{});
    PictureHeaders bilder; ///< never asked: no block is a picture
    RecordingDevice geraet{auftrag, bilder};
    PrintSurface surface;
    Blatt blatt;
};

std::vector<Textblock> texte(const EigeneBloecke& bloecke, Blatt& blatt, Designblock block,
                             const Druckseite& seite) {
    switch (block) {
    case Designblock::Kunde:
        return {bloecke.kunde()};
    case Designblock::Datum:
        return {bloecke.datum()};
    case Designblock::Lieferdatum:
        return {bloecke.lieferdatum()};
    case Designblock::Bankzeile:
        return bloecke.bankzeilen(blatt);
    case Designblock::Werbespruch:
        return {bloecke.werbespruch()};
    case Designblock::Bemerkungen:
        return {bloecke.bemerkungen()};
    case Designblock::Absender:
        return {bloecke.absender()};
    case Designblock::Kundennummer:
        return {bloecke.kundennummer()};
    case Designblock::Titel:
        return {bloecke.titel()};
    case Designblock::Seitenzahl:
        return {bloecke.seitenzahl(seite)};
    case Designblock::Anschreiben:
        return {bloecke.anschreiben()};
    case Designblock::Liste:
        break;
    }
    return {};
}

std::vector<std::string> platzhaltertext(Designblock block) {
    switch (block) {
    case Designblock::Kunde:
        return {vorgabe::kKunde1, vorgabe::kKunde2, vorgabe::kKunde3};
    case Designblock::Datum:
        return {"Datum"};
    case Designblock::Lieferdatum:
        return {"Lieferdatum"};
    case Designblock::Bankzeile:
        return {"Bankverbindung"};
    case Designblock::Werbespruch:
        return {"Werbespruch"};
    case Designblock::Bemerkungen:
        return {"Bemerkungen"};
    case Designblock::Absender:
        return {"Ihre Firma", "Anschrift"};
    case Designblock::Kundennummer:
        return {vorgabe::kKundennr};
    case Designblock::Titel:
        return {vorgabe::kTitel};
    case Designblock::Seitenzahl:
        return {"Seite"};
    case Designblock::Anschreiben:
        return {"Anschreiben"};
    case Designblock::Liste:
        break;
    }
    return {};
}

bool druckt(Blatt& blatt, const std::vector<Textblock>& bloecke) {
    return std::any_of(bloecke.begin(), bloecke.end(),
                       [&blatt](const Textblock& b) { return BLOCK_MESSEN(blatt, b).hoehe > 0; });
}

/// The box around the letters of all of them; all 0 where none prints.
Kasten kasten_um(Blatt& blatt, const std::vector<Textblock>& bloecke) {
    Kasten um{};
    bool erster = true;
    for (const Textblock& block : bloecke) {
        const Blockmass mass = BLOCK_MESSEN(blatt, block);
        if (mass.hoehe == 0) {
            continue;
        }
        const Kasten k = BLOCK_KASTEN(block, mass);
        um = std::exchange(erster, false)
                 ? k
                 : Kasten{std::min(um.links, k.links), std::min(um.oben, k.oben),
                          std::max(um.rechts, k.rechts), std::max(um.unten, k.unten)};
    }
    return um;
}

bool leer(const Kasten& kasten) {
    return kasten.rechts <= kasten.links;
}

bool auf_dem_blatt(const Blatt& blatt, const Kasten& kasten) {
    return kasten.links >= 0 && kasten.oben >= 0 && kasten.rechts <= RECHTER_RAND(blatt) &&
           kasten.unten <= UNTERKANTE(blatt);
}

void wege_pruefen(const Blatt& blatt, const Design& design, std::array<Blocklage, kDesignbloecke>& lagen) {
    const auto frei = [&](const Blocklage& lage) {
        Satzspiegel andere(UNTERKANTE(blatt));
        if (design.VISIBLE_LOGO) {
            andere.belegen({design.X_LOGO + kLogorand, design.Y_LOGO + kLogorand,
                            design.X_LOGO + design.B_LOGO - kLogorand,
                            design.Y_LOGO + design.H_LOGO - kLogorand});
        }
        for (const Blocklage& andere_lage : lagen) {
            if (&andere_lage != &lage && !leer(andere_lage.kasten)) {
                andere.belegen(andere_lage.kasten);
            }
        }
        return andere.frei(lage.kasten) && auf_dem_blatt(blatt, lage.kasten);
    };
    for (Blocklage& lage : lagen) {
        lage.im_weg = !leer(lage.kasten) && !frei(lage);
    }
}

} // namespace

Blockstelle BLOCKSTELLE(Designblock block) {
    constexpr std::array<Blockstelle, kDesignbloecke> kStellen{
        {{&Design::X_ADRESSEKUNDE, &Design::Y_ADRESSEKUNDE},
         {&Design::X_DATUM, &Design::Y_DATUM},
         {&Design::X_LIEFERDATUM, &Design::Y_LIEFERDATUM},
         {&Design::X_LISTE, &Design::Y_LISTE},
         {&Design::X_BANKZEILE, &Design::Y_BANKZEILE},
         {&Design::X_WERBESPRUCH, &Design::Y_WERBESPRUCH},
         {&Design::X_BEMERKUNG, &Design::Y_BEMERKUNG},
         {&Design::X_ADRESSEFIRMA, &Design::Y_ADRESSEFIRMA},
         {&Design::X_KDNR, &Design::Y_KDNR},
         {&Design::X_RN, &Design::Y_RN},
         {&Design::X_SEITE, &Design::Y_SEITE},
         {&Design::X_BEMERKUNG_1, &Design::Y_BEMERKUNG_1}}};
    return kStellen.at(static_cast<std::size_t>(block));
}

const Form1& Blockbilder::mit_zeilen() {
    if (!ohne_zeilen()) {
        return form1_;
    }
    if (!beispiel_) {
        beispiel_ = std::make_unique<Form1>();
    }
    Form1& beispiel = *beispiel_;
    copy_controls(form1_, beispiel);
    for (CheckBox* zuschlag : {&beispiel.Check_RABATT, &beispiel.Check_mwst, &beispiel.Check_Versandkosten}) {
        zuschlag->Value = 0;
    }
    double summe = 0;
    int nummer = 0;
    for (const Beispielzeile& zeile : kBeispielzeilen) {
        const bool position = *zeile.menge != '\0';
        const double betrag = position ? nach_double(zeile.menge) * nach_double(zeile.preis) : 0;
        beispiel.List_K.AddItem(zeile.art);
        beispiel.List_pos.AddItem(position ? std::to_string(++nummer) : std::string());
        beispiel.List_Menge.AddItem(zeile.menge);
        beispiel.List_Leistung.AddItem(zeile.leistung);
        beispiel.List_Preis.AddItem(zeile.preis);
        beispiel.List_Gesamtp.AddItem(position ? format_zahl(betrag, "0.00") : std::string());
        summe += betrag;
    }
    beispiel.Text_summe.Text = format_zahl(summe, "0.00");
    beispiel.Text_gesamtbetrag.Text = beispiel.Text_summe.Text();
    return beispiel;
}

Blockbild Blockbilder::ZEICHNEN(Designblock block, const Design& design) {
    Blockbild bild;
    DrawnPage seite = block == Designblock::Liste ? liste_zeichnen(design, bild.platzhalter)
                                                  : text_zeichnen(block, design, bild.platzhalter);
    bild.seite = std::make_shared<DrawnPage>(std::move(seite));
    return bild;
}

DrawnPage Blockbilder::text_zeichnen(Designblock block, const Design& design, bool& platzhalter) const {
    Zeichenblatt papier(metrics_, programm_.RECHNUNGSSCHRIFT);
    const EigeneBloecke eigene(form1_, einstellungen_, programm_, design);
    const std::vector<Druckseite> seiten = DRUCKSEITEN(form1_, einstellungen_);
    std::vector<Textblock> bloecke = texte(eigene, papier.blatt, block, seiten.front());
    platzhalter = !druckt(papier.blatt, bloecke);
    if (platzhalter) {
        bloecke.resize(1);
        bloecke.front().zeilen = platzhaltertext(block);
        bloecke.front().farbe = kFarbePlatzhalter;
    }
    const Blockstelle stelle = BLOCKSTELLE(block);
    const double x = design.*stelle.x;
    const double y = design.*stelle.y;
    Paper groesse{0, 0};
    for (const Textblock& teil : bloecke) {
        const Blockmass mass = BLOCK_MESSEN(papier.blatt, teil);
        groesse.width = std::max(groesse.width, teil.x + mass.breite - x);
        groesse.height = std::max(groesse.height, teil.y + mass.hoehe - y);
        BLOCK_DRUCKEN(papier.blatt, teil);
    }
    return papier.ausschnitt(x, y, groesse);
}

DrawnPage Blockbilder::liste_zeichnen(const Design& design, bool& platzhalter) {
    platzhalter = ohne_zeilen();
    const Form1& form1 = mit_zeilen();
    const EigeneBloecke eigene(form1, einstellungen_, programm_, design);
    Zeichenblatt papier(metrics_, programm_.RECHNUNGSSCHRIFT);
    const std::vector<Druckseite> seiten = DRUCKSEITEN(form1, einstellungen_);
    Druckseite seite = seiten.front();
    const auto zeichnen = [&] {
        papier.gezeichnet().clear();
        return eigene.TABELLE_DRUCKEN(papier.blatt, seite, kOptionen, design.Y_LISTE).linie - design.Y_LISTE;
    };
    if (const double zu_viel = zeichnen() - kListenbild.height; zu_viel > 0) {
        const auto zeilen = static_cast<int>(std::ceil(zu_viel / papier.surface.TextHeight()));
        seite.zeilen.bis = std::max(seite.zeilen.von, seite.zeilen.bis - zeilen);
        zeichnen();
    }
    return papier.ausschnitt(design.X_LISTE, design.Y_LISTE, kListenbild);
}

std::array<Blocklage, kDesignbloecke> Blockbilder::LAGEN(const Design& design) {
    const Form1& form1 = mit_zeilen();
    const EigeneBloecke eigene(form1, einstellungen_, programm_, design);
    const std::vector<Druckseite> seiten = DRUCKSEITEN(form1, einstellungen_);
    Zeichenblatt papier(metrics_, programm_.RECHNUNGSSCHRIFT);
    std::array<Blocklage, kDesignbloecke> lagen;
    for (std::size_t i = 0; i < lagen.size(); ++i) {
        const auto block = static_cast<Designblock>(i);
        lagen[i].kasten =
            block == Designblock::Liste
                ? Kasten{design.X_LISTE, design.Y_LISTE, design.X_LISTE + kListenbild.width,
                         eigene.TABELLE_DRUCKEN(papier.blatt, seiten.front(), kOptionen, design.Y_LISTE)
                             .linie}
                : kasten_um(papier.blatt, texte(eigene, papier.blatt, block, seiten.front()));
    }
    wege_pruefen(papier.blatt, design, lagen);
    return lagen;
}

std::shared_ptr<const DrawnPage> Blockbilder::BLATTGRUND(const Design& design) const {
    Zeichenblatt papier(metrics_, programm_.RECHNUNGSSCHRIFT);
    Druckkopf(form1_, einstellungen_, programm_).DRUCKE_FALTMARKEN(papier.blatt);
    EigeneBloecke(form1_, einstellungen_, programm_, design).BANKLINIE_DRUCKEN(papier.blatt);
    return std::make_shared<DrawnPage>(papier.ausschnitt(0, 0, {}));
}

} // namespace quittika
