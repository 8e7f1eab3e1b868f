#include "print/einstellungsmuster.hpp"

#include "platform/gesetzt.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr int kPause = 200;    ///< ms without a change until the page is drawn
constexpr int kNaechstes = 10; ///< ms from one small page to the next: keys and clicks come between
constexpr Paper kA4;
constexpr int kRand = twips(10); ///< of the ground around the page

} // namespace

Einstellungsmuster::Einstellungsmuster(Form1& form1, frm_einstellungen& einstellungen,
                                       std::function<std::unique_ptr<Musterbeleg>()> beleg)
    : einstellungen_(einstellungen), beleg_machen_(std::move(beleg)) {
    einstellungen.Shown = [this] { Form_Shown(); };
    einstellungen.ControlChanged = [this](const Control& womit) { Etwas_Geaendert(womit); };
    form1.ControlChanged = [this](const Control& womit) { Rechnung_Geaendert(womit); };
    einstellungen.Timer_Muster.Tick = [this] { Timer_Muster_Timer(); };
    einstellungen.Frame_Muster.Resize = [this] { anordnen(); };
}

void Einstellungsmuster::Form_Shown() {
    if (beleg_ == nullptr) {
        beleg_ = beleg_machen_();
    }
    layoutbilder_ = 0;
    anordnen();
    MUSTER_ZEICHNEN();
    if (layouts_in_sicht()) {
        warten(kNaechstes);
    }
}

void Einstellungsmuster::Etwas_Geaendert(const Control& womit) {
    if (bei_der_arbeit_ || !einstellungen_.shown()) {
        return;
    }
    if (&womit == &einstellungen_.SSTab1) {
        warten(veraltet_ ? kPause : kNaechstes);
    } else {
        veralten();
    }
}

/// Buttons and status line change by themselves, and nothing of them is printed.
void Einstellungsmuster::Rechnung_Geaendert(const Control& womit) {
    const bool gedruckt = dynamic_cast<const TextBox*>(&womit) != nullptr ||
                          dynamic_cast<const CheckBox*>(&womit) != nullptr ||
                          dynamic_cast<const OptionButton*>(&womit) != nullptr ||
                          dynamic_cast<const ListBox*>(&womit) != nullptr;
    if (gedruckt && !bei_der_arbeit_ && einstellungen_.shown()) {
        veralten();
    }
}

void Einstellungsmuster::veralten() {
    veraltet_ = true;
    layoutbilder_ = 0;
    warten(kPause);
}

/// Begins to wait anew.
void Einstellungsmuster::warten(int ms) {
    const Gesetzt eigene(bei_der_arbeit_);
    einstellungen_.Timer_Muster.Enabled = false;
    einstellungen_.Timer_Muster.Interval = ms;
    einstellungen_.Timer_Muster.Enabled = true;
}

void Einstellungsmuster::Timer_Muster_Timer() {
    const Gesetzt eigene(bei_der_arbeit_);
    einstellungen_.Timer_Muster.Enabled = false;
    if (!einstellungen_.shown()) {
        return;
    }
    if (veraltet_) {
        MUSTER_ZEICHNEN();
    } else if (layouts_in_sicht()) {
        LAYOUTBILD_ZEICHNEN();
    }
    if (layouts_in_sicht() && layoutbilder_ < einstellungen_.Layoutbilder().size()) {
        warten(kNaechstes);
    }
}

void Einstellungsmuster::MUSTER_ZEICHNEN() {
    const Gesetzt eigene(bei_der_arbeit_);
    veraltet_ = false;
    beleg_->AUFNEHMEN();
    const std::string hinweis = beleg_->ZEICHNEN(einstellungen_.Picture_Muster);
    einstellungen_.Label_Muster.Caption =
        beleg_->beschreibung() + (hinweis.empty() ? std::string() : "\r\n" + hinweis);
}

void Einstellungsmuster::LAYOUTBILD_ZEICHNEN() {
    if (layoutbilder_ < einstellungen_.Layoutbilder().size()) {
        Image& bild = *einstellungen_.Layoutbilder().at(layoutbilder_);
        beleg_->ZEICHNEN(bild, static_cast<int>(++layoutbilder_));
    }
}

/// The page fills its frame as far as its proportions allow, with a margin.
void Einstellungsmuster::anordnen() {
    const Gesetzt eigene(bei_der_arbeit_);
    const Frame& raum = einstellungen_.Frame_Muster;
    const int breite = std::max(0, raum.Width() - 2 * kRand);
    const int hoehe = std::max(0, raum.Height() - 2 * kRand);
    const double mass = std::min(breite / kA4.width, hoehe / kA4.height);
    PictureBox& bild = einstellungen_.Picture_Muster;
    bild.Width = static_cast<int>(mass * kA4.width);
    bild.Height = static_cast<int>(mass * kA4.height);
    bild.Left = (raum.Width() - bild.Width()) / 2;
    bild.Top = (raum.Height() - bild.Height()) / 2;
}

bool Einstellungsmuster::layouts_in_sicht() const {
    return einstellungen_.Frame_Layout.effectively_visible();
}

} // namespace quittika
