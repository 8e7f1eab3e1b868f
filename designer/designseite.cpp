#include "designer/designseite.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quittika {

namespace {

constexpr double kFern = 30'000; ///< mm: a place beyond could not be read from the design file again
constexpr double kAuslauf = 0.6; ///< mm: on screen the last letters run over what was measured
constexpr int kRand = twips(10); ///< of the table that the page lies on

} // namespace

int TWIPS(double mm, double FAKTOR) {
    // Far beyond any screen, and still a number of twips.
    constexpr double kWeitWeg = 1e6;
    return static_cast<int>(std::lround(std::clamp(mm * FAKTOR, -kWeitWeg, kWeitWeg)));
}

void LEGEN(Control& control, const Kasten& mm, double FAKTOR) {
    const int links = TWIPS(mm.links, FAKTOR);
    const int oben = TWIPS(mm.oben, FAKTOR);
    control.Left = links;
    control.Top = oben;
    control.Width = std::max(TWIPS(mm.rechts, FAKTOR) - links, kTwipsPerPixel);
    control.Height = std::max(TWIPS(mm.unten, FAKTOR) - oben, kTwipsPerPixel);
}

Designseite::Designseite(FORM_DESIGNER& form)
    : form_(form),
      elemente_{{
          {"Wasserzeichen", form.Image_WASSERZ, &Design::X_WASSERZ, &Design::Y_WASSERZ, &Design::B_WASSERZ,
           &Design::H_WASSERZ, selektor::kWasserzeichen},
          {"Logo", form.Image_LOGO, &Design::X_LOGO, &Design::Y_LOGO, &Design::B_LOGO, &Design::H_LOGO,
           selektor::kLogo},
          {"Tabelle", form.Image_LISTE, nullptr, &Design::Y_LISTE, nullptr, nullptr, selektor::kListe,
           Designblock::Liste},
          {"Firmenadresse", form.Image_adressefirma, &Design::X_ADRESSEFIRMA, &Design::Y_ADRESSEFIRMA,
           nullptr, nullptr, selektor::kAbsender, Designblock::Absender},
          {"Kundenadresse", form.Image_adressekunde, &Design::X_ADRESSEKUNDE, &Design::Y_ADRESSEKUNDE,
           nullptr, nullptr, selektor::kNichts, Designblock::Kunde},
          {"Kundennummer", form.Image_KDNR, &Design::X_KDNR, &Design::Y_KDNR, nullptr, nullptr,
           selektor::kKundennummer, Designblock::Kundennummer},
          {"Rechnungsnummer", form.Image_RN, &Design::X_RN, &Design::Y_RN, nullptr, nullptr, selektor::kTitel,
           Designblock::Titel},
          {"Datum", form.Image_datum, &Design::X_DATUM, &Design::Y_DATUM, nullptr, nullptr, selektor::kNichts,
           Designblock::Datum},
          {"Lieferdatum", form.Image_Lieferdatum, &Design::X_LIEFERDATUM, &Design::Y_LIEFERDATUM, nullptr,
           nullptr, selektor::kNichts, Designblock::Lieferdatum},
          {"Werbespruch", form.Image_werbespruch, &Design::X_WERBESPRUCH, &Design::Y_WERBESPRUCH, nullptr,
           nullptr, selektor::kWerbespruch, Designblock::Werbespruch},
          {"Bemerkungen", form.Image_Bemerkungen[0], &Design::X_BEMERKUNG, &Design::Y_BEMERKUNG, nullptr,
           nullptr, selektor::kBemerkungen, Designblock::Bemerkungen},
          {"Anschreiben", form.Image_Bemerkungen[1], &Design::X_BEMERKUNG_1, &Design::Y_BEMERKUNG_1, nullptr,
           nullptr, selektor::kAnschreiben, Designblock::Anschreiben},
          {"Bankverbindung", form.Image_Bankzeile, &Design::X_BANKZEILE, &Design::Y_BANKZEILE, nullptr,
           nullptr, selektor::kBankzeile, Designblock::Bankzeile},
          {"Seitenzahl", form.Image_seitenzahl, &Design::X_SEITE, &Design::Y_SEITE, nullptr, nullptr,
           selektor::kSeitenzahl, Designblock::Seitenzahl},
      }} {}

void Designseite::anordnen() {
    const Frame& tisch = form_.Frame_Tisch;
    mass_ = SEITE_EINPASSEN(tisch.Width() - 2 * kRand, tisch.Height() - 2 * kRand);
    Frame& seite = form_.Frame_A4;
    const int frei = tisch.Width() - mass_.breite;
    seite.Left = tisch.Left() + std::max(kRand, frei / 2 / kTwipsPerPixel * kTwipsPerPixel);
    seite.Top = tisch.Top() + kRand;
    seite.Width = mass_.breite;
    seite.Height = mass_.hoehe;
    LEGEN(form_.Image_Blatt, {0, 0, kSeitenbreite, kSeitenhoehe}, FAKTOR());
    for (std::size_t i = 0; i < elemente_.size(); ++i) {
        platzieren(i);
    }
}

std::size_t Designseite::nummer_von(int selektor) const {
    const auto gefunden = std::find_if(elemente_.begin(), elemente_.end(),
                                       [selektor](const Designelement& e) { return e.selektor == selektor; });
    return static_cast<std::size_t>(gefunden - elemente_.begin());
}

void Designseite::setzen(const Stand& stand) {
    for (std::size_t i = 0; i < stand.size(); ++i) {
        setzen(i, stand.at(i));
    }
}

void Designseite::setzen(std::size_t nummer, const Blockmasse& masse) {
    const Designelement& e = element(nummer);
    Blockmasse& ziel = stand_.at(nummer);
    ziel.x = e.nur_senkrecht() ? kListenrand : std::clamp(masse.x, -kFern, kFern);
    ziel.y = std::clamp(masse.y, -kFern, kFern);
    if (e.b != nullptr) { // else its picture decides
        ziel.b = masse.b;
        ziel.h = masse.h;
    }
    platzieren(nummer);
}

void Designseite::ziehen(std::size_t nummer, double left, double top) {
    const auto twips_von = [this](double wert) {
        return static_cast<int>(std::lround(std::clamp(wert, -kFern * FAKTOR(), kFern * FAKTOR())));
    };
    Image& bild = element(nummer).bild;
    Blockmasse& masse = stand_.at(nummer);
    if (!element(nummer).nur_senkrecht()) {
        bild.Left = twips_von(left);
        masse.x = bild.Left() / FAKTOR();
    }
    bild.Top = twips_von(top);
    masse.y = bild.Top() / FAKTOR();
}

bool Designseite::zeigen(std::size_t nummer, const DrawnPage& gezeichnet) {
    Image& bild = element(nummer).bild;
    DrawnPage seite = gezeichnet;
    if (!element(nummer).nur_senkrecht()) {
        seite.paper.width += kAuslauf;
        seite.paper.height += kAuslauf;
    }
    Blockmasse& masse = stand_.at(nummer);
    if (masse.b != seite.paper.width || masse.h != seite.paper.height) {
        masse.b = seite.paper.width;
        masse.h = seite.paper.height;
        platzieren(nummer);
    }
    const bool anders = bild.page() == nullptr || !(*bild.page() == seite);
    if (anders) {
        bild.show_page(std::make_shared<DrawnPage>(std::move(seite)));
    }
    return anders;
}

void Designseite::PLATZIEREN(const Design& design) {
    for (std::size_t i = 0; i < elemente_.size(); ++i) {
        const Designelement& e = elemente_.at(i);
        const auto wert = [&design](double Design::*feld) { return feld == nullptr ? 0 : design.*feld; };
        setzen(i, {wert(e.x), wert(e.y), wert(e.b), wert(e.h)});
    }
}

void Designseite::UEBERNEHMEN(Design& design) const {
    for (std::size_t i = 0; i < elemente_.size(); ++i) {
        const Designelement& e = elemente_.at(i);
        const Blockmasse& masse = stand_.at(i);
        if (e.x != nullptr) {
            design.*e.x = masse.x;
        }
        design.*e.y = masse.y;
        if (e.b != nullptr) {
            design.*e.b = masse.b;
            design.*e.h = masse.h;
        }
    }
}

void Designseite::platzieren(std::size_t nummer) {
    const Blockmasse& masse = stand_.at(nummer);
    Image& bild = element(nummer).bild;
    // The size does not depend on where the block stands.
    bild.Left = TWIPS(masse.x, FAKTOR());
    bild.Top = TWIPS(masse.y, FAKTOR());
    bild.Width = std::max(TWIPS(masse.b, FAKTOR()), kTwipsPerPixel);
    bild.Height = std::max(TWIPS(masse.h, FAKTOR()), kTwipsPerPixel);
}

} // namespace quittika
