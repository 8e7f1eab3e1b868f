#include "print/ueberdruck.hpp"

#include "platform/text.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr double kMmJePunkt = 25.4 / 72;
// Of the font's size, from the top of the line box: what capital letters and figures fill.
constexpr double kVersalien = 0.18;
constexpr double kGrundlinie = 0.9;
constexpr std::size_t kZitat = 30; ///< characters of a text that are shown

std::string zitat(const std::string& text) {
    const std::string gezeigt = gekuerzt(text);
    return "\"" + (zeichenzahl(gezeigt) > kZitat ? links(gezeigt, kZitat) + "..." : gezeigt) + "\"";
}

} // namespace

void Ueberdruck::text(double left, double top, double width, const PrintFont& font, std::string_view text) {
    if (!befund_.empty()) {
        return;
    }
    const double hoehe = font.size * kMmJePunkt;
    const Druckbild neu{left, top + kVersalien * hoehe, left + width, top + kGrundlinie * hoehe,
                        std::string(text)};
    const auto bedeckt = std::find_if(bilder_.begin(), bilder_.end(), [&neu](const Druckbild& alt) {
        return alt.links < neu.rechts && neu.links < alt.rechts && alt.oben < neu.unten &&
               neu.oben < alt.unten;
    });
    if (bedeckt != bilder_.end()) {
        melden("stehen " + zitat(bedeckt->text) + " und " + zitat(neu.text) + " übereinander");
    } else if (neu.links < -kOriginLeft || neu.rechts > papier_.width - kOriginLeft ||
               neu.unten > papier_.height - kOriginTop) {
        melden("ragt " + zitat(neu.text) + " über das Blatt hinaus");
    }
    bilder_.push_back(neu);
}

void Ueberdruck::melden(const std::string& was) {
    befund_ = "Auf Seite " + std::to_string(seite_) + " " + was;
}

std::string Ueberdruck::hinweis(std::string_view ausweg) const {
    return befund_.empty() ? std::string() : befund_ + ": " + std::string(ausweg);
}

void Ueberdruck::neue_seite() {
    bilder_.clear();
    ++seite_;
}

} // namespace quittika
