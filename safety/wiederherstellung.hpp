#pragma once

#include "invoice/file/dateibefehle.hpp"
#include "platform/dialogs.hpp"
#include "safety/entwurf.hpp"
#include "safety/fassungsablage.hpp"

namespace quittika {

/// Offers the drafts of programs that ended without being asked.
class Wiederherstellung {
public:
    Wiederherstellung(Entwurf& entwurf, Fassungsablage& fassungen, Dateibefehle& dateibefehle,
                      Dialogs& dialogs);

    /// Asks about one draft after the other until one is opened. The others go among the versions.
    void Anbieten();

private:
    bool Fragen(const std::string& bytes) const;
    /// Answers whether it is among the versions now, and there alone.
    bool Aufheben(const Entwurfsfund& fund);

    Entwurf& entwurf_;
    Fassungsablage& fassungen_;
    Dateibefehle& dateibefehle_;
    Dialogs& dialogs_;
};

} // namespace quittika
