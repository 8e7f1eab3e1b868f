#include "platform/fluechtige_datei.hpp"

#include "platform/dateizugriff.hpp"
#include "platform/textdatei.hpp"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace quittika {

void DATEI_FLUECHTIG_SCHREIBEN(const std::string& pfad, const std::string& text) {
    Textpuffer puffer;
    puffer.zeile(text);
    Datei datei(ort_von(pfad), O_WRONLY | O_CREAT | O_CLOEXEC);
    datei.schreiben(puffer.bytes());
    // A file that is emptied first is written through by some systems when it is closed.
    if (ftruncate(datei.nummer(), static_cast<off_t>(puffer.bytes().size())) != 0) {
        scheitern(errno, pfad);
    }
    datei.schliessen();
}

} // namespace quittika
