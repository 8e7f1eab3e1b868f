#include "designer/blockzug.hpp"

#include "platform/zahlen.hpp"

#include <cmath>
#include <utility>

namespace quittika {

Blockzug::Blockzug(FORM_DESIGNER& form, Designseite& seite, std::function<void(std::size_t)> bewegt,
                   std::function<void(const Designseite::Stand&)> gezogen)
    : form_(form), seite_(seite), bewegt_(std::move(bewegt)), gezogen_(std::move(gezogen)) {
    for (std::size_t i = 0; i < seite.elemente().size(); ++i) {
        Image& bild = seite.element(i).bild;
        bild.MouseMove = [this, i](const MouseEvent& maus) { MouseMove(i, maus); };
        bild.MouseUp = [this](const MouseEvent& maus) {
            if (maus.button == MouseButton::Left) {
                MouseUp();
            }
        };
    }
}

void Blockzug::ort_merken(std::size_t nummer, const MouseEvent& maus) {
    const Image& bild = seite_.element(nummer).bild;
    MAUS_X_ = static_cast<double>(bild.Left()) + maus.x;
    MAUS_Y_ = static_cast<double>(bild.Top()) + maus.y;
}

void Blockzug::MouseDown(std::size_t nummer, const MouseEvent& maus) {
    ort_merken(nummer, maus);
    if (maus.button == MouseButton::Left) {
        // Keys may have moved the block under a pointer at rest: the drag begins here without a jump.
        MAUS_START_ = {static_cast<float>(maus.x), static_cast<float>(maus.y)};
        abgebrochen_ = false;
    }
}

void Blockzug::MouseMove(std::size_t nummer, const MouseEvent& maus) {
    ort_merken(nummer, maus);
    const auto ganze = [this](double twips) {
        return format_zahl(std::nearbyint(twips / seite_.FAKTOR()), "0");
    };
    form_.Caption = "DESIGNER                       Position:  X = " + ganze(MAUS_X_) +
                    " mm, Y = " + ganze(MAUS_Y_) + " mm";
    if (maus.button != MouseButton::Left) {
        MouseUp();
        MAUS_START_ = {static_cast<float>(maus.x), static_cast<float>(maus.y)};
    } else if (!abgebrochen_) {
        if (!vorher_) {
            vorher_ = seite_.stand();
        }
        seite_.ziehen(nummer, MAUS_X_ - static_cast<double>(MAUS_START_.x),
                      MAUS_Y_ - static_cast<double>(MAUS_START_.y));
    }
    bewegt_(nummer);
}

void Blockzug::MouseUp() {
    abgebrochen_ = false;
    if (const std::optional<Designseite::Stand> vorher = std::exchange(vorher_, {})) {
        gezogen_(*vorher);
    }
}

bool Blockzug::abbrechen() {
    if (const std::optional<Designseite::Stand> vorher = std::exchange(vorher_, {})) {
        seite_.setzen(*vorher);
        abgebrochen_ = true;
    }
    return abgebrochen_;
}

} // namespace quittika
