#pragma once

#include <stdexcept>
#include <string>

namespace quittika {

/// Numbers of the desktop's runtime errors.
namespace fehler {
constexpr int kUngueltigerAufruf = 5;
constexpr int kUeberlauf = 6;
constexpr int kSpeicher = 7;
constexpr int kIndex = 9;
constexpr int kDivisionDurchNull = 11;
constexpr int kFalscherTyp = 13;
constexpr int kDateiname = 52;
constexpr int kDateiFehlt = 53;
constexpr int kGeraet = 57;
constexpr int kDateiVorhanden = 58;
constexpr int kDatentraegerVoll = 61;
constexpr int kZugriffVerweigert = 70;
constexpr int kDatentraegerFehlt = 71;
constexpr int kPfadZugriff = 75;
constexpr int kPfadFehlt = 76;
constexpr int kEigenschaft = 380;
constexpr int kBild = 481;
constexpr int kDrucker = 482;
constexpr int kDialogAbgebrochen = 32755;
} // namespace fehler

/// A runtime error with the desktop's number. `ort` names the file or place, if there is one.
class Laufzeitfehler : public std::runtime_error {
public:
    explicit Laufzeitfehler(int nummer, std::string ort = {});

    int nummer() const { return nummer_; }
    const std::string& ort() const { return ort_; }

private:
    int nummer_;
    std::string ort_;
};

/// German sentence for an error number.
const char* fehlertext(int nummer);

} // namespace quittika
