#include "platform/zahlen.hpp"
#include "tests/pruefstand.hpp"

#include <cstdint>
#include <cstdlib>

/// Whatever bytes a file holds: it is read, the totals are calculated, and the lists stay in step.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl) {
    using namespace quittika;
    static Pruefstand p;
    p.dialoge.take_boxes();
    p.leser.InhaltUebernehmen({reinterpret_cast<const char*>(bytes), anzahl});
    p.leser.DateiDatenAnzeigen();
    p.summen.jetztberechnen_List();
    p.rechnung.DarstellungAufbauen();
    p.schreiber.DateiDatenSammeln();
    for (const ListBox* liste : p.form1.Positionslisten()) {
        if (liste->ListCount() != p.form1.List_DARSTELLUNG.ListCount()) {
            std::abort();
        }
    }
    if (!ist_numerisch(p.form1.Text_gesamtbetrag.Text())) {
        std::abort();
    }
    return 0;
}
