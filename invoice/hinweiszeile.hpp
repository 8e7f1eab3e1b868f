#pragma once

#include "platform/forms/controls.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quittika {

/// Panel 3 of the main window: what the user ought to know of the invoice in hand. Messages tell what
/// happened, conditions what holds at present; they stand side by side, so that none hides another.
class Hinweiszeile {
public:
    /// In the order in which they are told; messages stand behind the first one.
    enum class Lage : std::uint8_t {
        Rechenfehler,  ///< amounts cannot be calculated
        Zeilenwahl,    ///< a row is being changed
        NichtGezaehlt, ///< an amount that does not count
    };

    explicit Hinweiszeile(StatusPanel& panel) : panel_(panel) {}

    /// Tells what happened, beside what stands there. A field has one message at most. An empty text tells
    /// nothing.
    void melden(const std::string& text, const Control* feld = nullptr);
    /// Takes away what was told of a field: something else is being typed there.
    void vergessen(const Control& feld);
    /// Sets what holds; an empty text ends it.
    void setzen(Lage lage, const std::string& text);
    /// Takes the messages away. Conditions stay: they end with their cause.
    void leeren();

    /// A command of the user, for its lifetime. It takes away the messages of the command before, but not
    /// those that appeared since: leaving a field by a click on a button tells something about what the
    /// button does.
    class Befehl {
    public:
        explicit Befehl(Hinweiszeile& zeile);
        Befehl(const Befehl&) = delete;
        Befehl& operator=(const Befehl&) = delete;
        ~Befehl() { --zeile_.befehle_; }

    private:
        Hinweiszeile& zeile_;
    };

private:
    struct Meldung {
        std::string text;
        const Control* feld;
        bool frisch; ///< told outside of a command
    };
    void zeigen();

    StatusPanel& panel_;
    std::vector<Meldung> meldungen_;
    std::array<std::string, 3> lagen_;
    int befehle_ = 0;
};

/// Caption of a control as it reads on screen, without the mark of its access key.
std::string BESCHRIFTUNG(const Control& steuerelement);

} // namespace quittika
