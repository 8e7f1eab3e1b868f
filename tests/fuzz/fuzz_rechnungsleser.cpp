#include "platform/zahlen.hpp"
#include "tests/fuzz/verlangen.hpp"
#include "tests/pruefstand.hpp"

#include <cstdint>

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
        verlangen(liste->ListCount() == p.form1.List_DARSTELLUNG.ListCount());
    }
    verlangen(ist_numerisch(p.form1.Text_gesamtbetrag.Text()));
    return 0;
}
