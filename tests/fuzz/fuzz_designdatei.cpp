#include "designer/designseite.hpp"
#include "print/eigenes_layout.hpp"
#include "tests/fuzz/verlangen.hpp"
#include "tests/print/druckprobe.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <variant>

namespace quittika {
namespace {

/// The standard design with one value replaced, as the first byte and the others say.
std::string veraendert(std::string_view bytes) {
    std::string text = DESIGN_SCHREIBEN(DESIGN_STANDARD(Programmverzeichnis("/ordner"))).bytes;
    std::size_t anfang = 0;
    for (int zeile = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.front()) % 37; zeile > 0; --zeile) {
        anfang = text.find('\n', anfang) + 1;
    }
    anfang = text.find(':', anfang) + 1;
    return text.replace(anfang, text.find(';', anfang) - anfang, bytes.substr(bytes.empty() ? 0 : 1));
}

/// What the designer writes of blocks dragged to any places, fractions included, is read back as the nearest
/// whole millimetres.
void gezogen_pruefen(std::string_view bytes, FORM_DESIGNER& form) {
    Designseite seite(form);
    seite.anordnen();
    for (std::size_t i = 0; i + 8 <= bytes.size() && i / 8 < kDesignelemente; i += 8) {
        std::int32_t ort[2];
        std::memcpy(ort, bytes.data() + i, sizeof ort);
        seite.ziehen(i / 8, ort[0], ort[1]);
    }
    Design geschrieben = DESIGN_STANDARD(Programmverzeichnis("/ordner"));
    seite.UEBERNEHMEN(geschrieben);
    const Designlesung gelesen = DESIGN_LESEN(DESIGN_SCHREIBEN(geschrieben).bytes);
    verlangen(gelesen.fehlen == 0);
    for (const Designzeile& zeile : DESIGNZEILEN()) {
        if (const auto* feld = std::get_if<double Design::*>(&zeile.feld)) {
            verlangen(std::abs(gelesen.design.*(*feld) - geschrieben.*(*feld)) <= 0.5);
        }
    }
}

/// What can be read is whole, comes back from its own file, and a page of it is drawn.
void pruefen(std::string_view bytes, Druckprobe& p) {
    try {
        Design design = DESIGN_LESEN(bytes).design;
        verlangen(design.X_LISTE == 12 && design.Y_RN == std::nearbyint(design.Y_RN));
        const Designtext text = DESIGN_SCHREIBEN(design);
        design.IMG_LOGO = systempfad(design.IMG_LOGO);
        design.IMG_WASSERZEICHEN = systempfad(design.IMG_WASSERZEICHEN);
        const Designlesung wieder = DESIGN_LESEN(text.bytes);
        verlangen(wieder.fehlen == 0 && (wieder.design == design || !text.verloren.empty()));
        Papier papier;
        Papiergeraet geraet(papier);
        PrintSurface flaeche(geraet, p.schrift);
        DRUCKE_EIGENESLAYOUT(p.form1, p.einstellungen, p.werte, design, {}).DRUCKEN(flaeche, {-4, -6});
        verlangen(papier.ended && papier.finden("Posten") != nullptr);
    } catch (const Laufzeitfehler&) { // no design
    }
}

} // namespace
} // namespace quittika

/// Whatever bytes the design file holds, alone or as one value of a file in order, and
/// wherever they drag the blocks.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
    using namespace quittika;
    static Druckprobe p;
    if (p.form1.List_pos.ListCount() == 0) {
        p.zeilen(3);
    }
    const std::string_view text(reinterpret_cast<const char*>(bytes), anzahl);
    pruefen(text, p);
    pruefen(veraendert(text), p);
    static FORM_DESIGNER form;
    gezogen_pruefen(text, form);
    return 0;
}
