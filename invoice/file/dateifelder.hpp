#pragma once

#include "invoice/form1.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quittika {

/// Numbers of the lines in an invoice file that are not simply one control's text.
namespace dateizeile {
constexpr int kKennung = 0;
constexpr int kMahnung = 59;
constexpr int kMwStSatz = 60;
constexpr int kSchrift = 61;
constexpr int kRabattprozent = 73;
constexpr int kRabattbetrag = 74;
constexpr int kNachRabatt = 75;
constexpr int kVersandText = 76;
constexpr int kVersandEingabe = 77;
constexpr int kVersand = 78;
constexpr int kVersandExtra = 79;
constexpr int kNummer = 80;
constexpr int kVersandInklusive = 217;
constexpr int kNotiz = 218;
constexpr int kVersandMwSt = 219;
constexpr int kVersandNetto = 220;
constexpr int kLetzteFeste = 1000; ///< last of the scalar lines
constexpr int kGespeichert = 1001;
constexpr int kVorlaeufig = 1002;
constexpr int kGrenze = 32000; ///< last index of the line arrays
} // namespace dateizeile

inline constexpr const char* kDateikennung = "qk8";
inline constexpr const char* kNichtGesetzt = "#**#";
inline constexpr const char* kListenmarke = "#qk8LIST#";
inline constexpr const char* kGespeichertAm = "Gespeichert am: "; ///< before date and time, in its line
/// Behind the other lines of an unsaved invoice: nobody has its number but in the window.
inline constexpr const char* kVorlaeufig = "Vorläufige Nummer";

enum class Lesart : std::uint8_t {
    Nie,          ///< written only
    Immer,        ///< taken as it stands
    Wenn_Gesetzt, ///< unless the line is "#**#"
    Von_Hand,     ///< has a rule of its own
};

/// What the text of a field ought to be.
enum class Inhalt : std::uint8_t { Beliebig, Zahl, Datum };

/// One line of the file and the control that it belongs to.
struct Dateifeld {
    int zeile;
    std::variant<TextBox*, CheckBox*, OptionButton*, Label*> steuerelement;
    Lesart lesart;
    Inhalt inhalt = Inhalt::Beliebig; ///< of a text field
};

/// All lines that stand for a control, in the order of the file.
std::vector<Dateifeld> DATEIFELDER(Form1& form1);

/// Text that a control contributes to the file.
std::string FELDTEXT(const Dateifeld& feld);
/// Gives the control the text of its line.
void FELD_SETZEN(const Dateifeld& feld, const std::string& text);
/// Whether the text of a line is what its control ought to hold.
bool FELD_VERSTANDEN(const Dateifeld& feld, const std::string& text);

/// Sets a check box to 0, 1 or 2; another text leaves it.
void HAEKCHEN_SETZEN(CheckBox& haekchen, const std::string& text);

/// Whether the text is a number, with a comma or a point.
bool IST_DATEIZAHL(const std::string& text);

/// A position line split at its ";", as views of it.
struct Positionszeile {
    /// Number, kind, quantity, text, price and total; "ERROR" for what is missing.
    std::array<std::string_view, 6> werte;
    bool vollzaehlig; ///< neither fewer nor more values
};

Positionszeile POSITION_TEILEN(std::string_view zeile);

/// Lines of an invoice file by number, 0 to 32000; a line never set is empty.
/// Every access outside throws `Laufzeitfehler` 9.
class Dateizeilen {
public:
    const std::string& operator[](int zeile) const;
    void setzen(int zeile, std::string text);
    void leeren() { zeilen_.clear(); }
    /// The lines up to the highest one set.
    const std::vector<std::string>& alle() const { return zeilen_; }

private:
    std::vector<std::string> zeilen_;
};

} // namespace quittika
