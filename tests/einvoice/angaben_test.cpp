#include "einvoice/angabendatei.hpp"
#include "einvoice/erkennung.hpp"
#include "einvoice/girocode.hpp"
#include "einvoice/mailvorlage.hpp"
#include "einvoice/pflichtangaben.hpp"
#include "tests/einvoice/musterrechnung.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Angabendatei, FremdeZeilenBleibenUndWerteKommenWieder) {
    const Probenordner ordner;
    const Angabenspeicher speicher{Programmverzeichnis(ordner.ordner())};
    EXPECT_EQ(speicher.verkaeufer(), Verkaeufer{});
    EXPECT_EQ(speicher.kaeufer("4711"), std::nullopt);
    ordner.schreiben("e_rechnung_kunden.txt",
                     "; von Hand \x81\x01\r\n[0815]\r\nName = M\xFCller \r\nFarbe=rot\r\n"
                     "\r\n[4712]\nName=X");
    ASSERT_TRUE(speicher.kaeufer("0815").has_value());
    EXPECT_EQ(speicher.kaeufer("0815")->Name, "Müller");
    Kaeufer k = *speicher.kaeufer("0815");
    k.Ort = "Bonn\r\nBeuel";
    EXPECT_EQ(speicher.kaeufer_merken("0815", k), 0U);
    EXPECT_EQ(speicher.kaeufer_merken("", k), 0U);
    EXPECT_EQ(ordner.lesen("e_rechnung_kunden.txt"),
              "; von Hand \x81\x01\r\n[0815]\r\nName = M\xFCller \r\nFarbe=rot\r\n"
              "Ort=Bonn Beuel\r\n\r\n[4712]\r\nName=X\r\n");
    k.Name = "Łódź"; // the code page has no such letters
    EXPECT_GT(speicher.kaeufer_merken("neu", k), 0U);
    EXPECT_EQ(speicher.kaeufer("neu")->Name, "Lódz");
    EXPECT_EQ(speicher.kaeufer("4712")->Name, "X");

    Verkaeufer v = MUSTERVERKAEUFER();
    v.GiroCode = "1";
    speicher.verkaeufer_merken(v);
    EXPECT_EQ(speicher.verkaeufer(), v);
}

TEST(Erkennung, LiestAnschriftenUndBriefkoepfe) {
    const struct {
        std::vector<std::string> zeilen;
        std::vector<std::string> erwartet; ///< name, addition, street, code, town, country, telephone
    } faelle[] = {
        {{"Meyer, Anna", "Hauptstr. 5", "12345 Berlin", "Tel.: 030/123"},
         {"Meyer, Anna", "", "Hauptstr. 5", "12345", "Berlin", "DE", "030/123"}},
        {{"Teller GmbH", "z. Hd. Frau Öz", "Am Wall 1", "D-01067 Dresden"},
         {"Teller GmbH", "z. Hd. Frau Öz", "Am Wall 1", "01067", "Dresden", "DE", ""}},
        {{"Huber KG", "Ring 3, A-1010 Wien", "", ""}, {"Huber KG", "", "Ring 3", "1010", "Wien", "AT", ""}},
        {{"Rossi", "Via Roma 1", "20100 Milano", "Italien"},
         {"Rossi", "", "Via Roma 1", "20100", "Milano", "IT", ""}},
        {{"E. Roth @ Söhne", "Am Markt 2", "1234 Genf", "Schweiz"},
         {"E. Roth @ Söhne", "", "Am Markt 2", "1234", "Genf", "CH", ""}},
        {{"Nur Name", "", "", ""}, {"Nur Name", "", "", "", "", "", ""}},
        {{"", "", "12345 ", "1234567 X"}, {"12345", "", "1234567 X", "", "", "", ""}},
    };
    for (const auto& f : faelle) {
        const Erkanntes e = ANGABEN_ERKENNEN(f.zeilen);
        EXPECT_EQ((std::vector<std::string>{e.Name, e.Zusatz, e.Strasse, e.PLZ, e.Ort, e.Land, e.Telefon}),
                  f.erwartet);
    }
    Musterrechnung m;
    EXPECT_EQ(VERKAEUFER_VORSCHLAG(m.quelle()).Name, "") << "samples are nobody's data";
    m.einstellungen.Text_firma_1.Text = "Tischlerei Hölzer";
    m.einstellungen.Text_firma_2.Text = "Sägeweg 7";
    m.einstellungen.Text_firma_3.Text = "50667 Köln";
    m.einstellungen.Text_firma_4.Text = "Telefon 0221 123456, Fax 0221 99 E-Mail: post@hoelzer.example";
    m.einstellungen.Text_firma_7.Text = "Steuernr: 214/5012/0815 USt-IdNr.: DE136695976";
    m.einstellungen.Option_BankVerb_Vorgabe.Value = false;
    m.einstellungen.Text_Bankverb1.Text = "Sparkasse, IBAN: DE02 1203 0000 0000 2020 51 BIC: BYLADEM1001";
    const Verkaeufer v = VERKAEUFER_VORSCHLAG(m.quelle());
    EXPECT_EQ(v.Ort + "|" + v.Telefon + "|" + v.E_Mail + "|" + v.Steuernummer + "|" + v.USt_IdNr,
              "Köln|0221 123456|post@hoelzer.example|214/5012/0815|DE136695976");
    EXPECT_EQ(v.IBAN + "|" + v.BIC, "DE02120300000000202051|BYLADEM1001");
}

TEST(Pflichtangaben, NennenWasDemPapierFehlt) {
    const struct {
        const char* name;
        const char* preis;
        Mwst_Modus modus;
        const char* bemerkung;
        std::string felder; ///< that are named where nothing but a row, a title and a date is there
    } faelle[] = {
        {"voll", "500,00", Mwst_Modus::Plus, "",
         "Text_firma_1 Text_firma_2 Text_firma_7 Text_RNnr Text_Kunde_1 Text_Kunde_2 Check_LIEFERDATUM "},
        {"Kleinbetrag", "200,00", Mwst_Modus::Plus, "", "Text_firma_1 Text_firma_2 "},
        {"brutto", "500,00", Mwst_Modus::Inklusive, "Leistungsdatum gleich Rechnungsdatum",
         "Text_firma_1 Text_firma_2 Text_firma_7 Text_RNnr Text_Kunde_1 Text_Kunde_2 Option_mwst_plus "},
        {"ohne Grund", "100,00", Mwst_Modus::Ohne, "", "Text_firma_1 Text_firma_2 Text_Bemerkung1 "},
        {"Kleinunternehmer", "500,00", Mwst_Modus::Ohne, "Steuerfrei nach § 19 UStG",
         "Text_firma_1 Text_firma_2 Text_firma_7 Text_Kunde_1 Text_Kunde_2 "},
        {"Steuerschuld beim Kunden", "100,00", Mwst_Modus::Ohne,
         "Steuerschuldnerschaft des Leistungsempfängers",
         "Text_firma_1 Text_firma_2 Text_firma_7 Text_RNnr Text_Kunde_1 Text_Kunde_2 Check_LIEFERDATUM "},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Pruefstand p;
        p.zeile("1", "Schrank", f.preis);
        Belegquelle q = BELEGQUELLE(p.form1, p.einstellungen, p.werte);
        q.mwst = f.modus;
        q.Gesamtbetrag = f.preis;
        q.Datum = "23.11.2026";
        q.Bemerkungen = {f.bemerkung};
        std::string felder;
        for (const Mangel& mangel : PFLICHTANGABEN(q)) {
            felder += mangel.feld + " ";
            EXPECT_EQ(mangel.schwere, Schwere::Hinweis) << "nobody is stopped";
        }
        EXPECT_EQ(felder, f.felder);
    }
    Musterrechnung m;
    m.zeile("1", "Schrank", "500,00");
    Belegquelle q = m.quelle();
    q.Firma = {"Hölzer", "Sägeweg 7", "50667 Köln", "Steuernr: 214/5012/0815"};
    EXPECT_EQ(PFLICHTANGABEN(q), Maengel{});
    m.speichern("eigene.qk8");
    m.speichern("andere.qk8");
    const std::vector<std::string> pfade{m.ordner.pfad("eigene.qk8"), m.ordner.pfad("andere.qk8"), "ERROR",
                                         m.ordner.pfad("andere.qk8")};
    const auto funde = NUMMERN_AUS_DATEIEN(pfade, m.ordner.pfad("eigene.qk8"));
    ASSERT_EQ(funde.size(), 1U);
    EXPECT_EQ(funde[0].nummer, "2026-17");
    ASSERT_EQ(PFLICHTANGABEN(q, funde).size(), 1U);
    EXPECT_EQ(PFLICHTANGABEN(q, funde)[0].feld, "Text_RNnr");
}

TEST(GiroCode, SagtWasDieRechnungSagt) {
    Musterrechnung m;
    m.zeile("2", "Stuhl", "50,00");
    Ueberweisung u = UEBERWEISUNG(m.quelle(), MUSTERVERKAEUFER());
    EXPECT_EQ(GIROCODE_FEHLER(u), "");
    EXPECT_EQ(GIROCODE_TEXT(u),
              "BCD\n002\n1\nSCT\nBYLADEM1001\nTischlerei Hölzer\nDE02120300000000202051\nEUR119.00\n\n\n"
              "RECHNUNG 2026-17 vom 23.11.2026");
    u.empfaenger = u.verwendung = std::string("Ä\n") + std::string(300, 'x');
    for (int i = 0; i < 300; ++i) {
        u.verwendung.insert(0, "😀");
    }
    EXPECT_LE(GIROCODE_TEXT(u).size(), 331U);
    const SquareGrid bild = QR_CODE(GIROCODE_TEXT(u));
    EXPECT_LE(bild.side, 69) << "version 13 at most";
    EXPECT_TRUE(bild.is_dark(0, 0) && bild.is_dark(bild.side - 1, 0) && bild.is_dark(0, bild.side - 1));
    EXPECT_THROW(QR_CODE(std::string(5000, 'x')), Laufzeitfehler);
    m.form1.Text_rechnung.Text = "GUTSCHRIFT";
    EXPECT_NE(GIROCODE_FEHLER(UEBERWEISUNG(m.quelle(), MUSTERVERKAEUFER())), "") << "nobody pays it";
    m.form1.Text_rechnung.Text = "RECHNUNG";
    const std::function<void(Ueberweisung&)> fehler[] = {
        [](Ueberweisung& x) { x.waehrung = "CHF"; },
        [](Ueberweisung& x) { x.betrag = {}; },
        [](Ueberweisung& x) { x.betrag = {-1}; },
        [](Ueberweisung& x) { x.IBAN = "DE02120300000000202052"; },
        [](Ueberweisung& x) { x.IBAN = ""; },
        [](Ueberweisung& x) { x.empfaenger = "\x01"; },
    };
    for (const auto& verderben : fehler) {
        Ueberweisung schlecht = UEBERWEISUNG(m.quelle(), MUSTERVERKAEUFER());
        verderben(schlecht);
        EXPECT_NE(GIROCODE_FEHLER(schlecht), "");
    }
}

TEST(Mailvorlage, FuelltPlatzhalterUndLaesstSichAendern) {
    const Probenordner ordner;
    const Programmverzeichnis verzeichnis(ordner.ordner());
    EXPECT_EQ(MAILVORLAGE_LESEN(verzeichnis), MAILVORLAGE());
    EXPECT_EQ(MAILVORLAGE_LESEN(verzeichnis), MAILVORLAGE()) << "the file that was made of it";
    ordner.schreiben("e_mail_vorlage.txt", "Betreff: {Titel} {Nummer}\r\n\r\nGr\xFC\xDF"
                                           "e an {Kunde}, {Was}?\r\n{Betrag}");
    const Mailwerte werte{"RECHNUNG", "1\r\nBcc: x", "1.1.2026", "5,00 EUR", "", "{Firma}", "Hölzer"};
    const Mail mail = MAIL_AUFSETZEN(MAILVORLAGE_LESEN(verzeichnis), werte, " a@b.de\n");
    EXPECT_EQ(mail.betreff, "RECHNUNG 1 Bcc: x");
    EXPECT_EQ(mail.text, "Grüße an {Firma}, {Was}?\n5,00 EUR\n");
    EXPECT_EQ(mail.an, "a@b.de");
}

} // namespace
} // namespace quittika
