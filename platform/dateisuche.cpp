#include "platform/dateisuche.hpp"

#include "platform/dateizugriff.hpp"
#include "platform/text.hpp"
#include "platform/utf8.hpp"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#include <dirent.h>

namespace quittika {

namespace {

/// Whether a text fits a pattern; on a "*" that has taken too little, it takes one character more.
bool passt(std::string_view text, std::string_view muster) {
    std::size_t t = 0;
    std::size_t m = 0;
    std::size_t stern = std::string_view::npos; ///< behind the last "*"
    std::size_t nach_stern = 0;                 ///< where the text goes on behind what it has taken
    while (t < text.size()) {
        if (m < muster.size() && muster[m] == '*') {
            stern = ++m;
            nach_stern = t;
        } else if (m < muster.size() && muster[m] == '?') {
            t += utf8_zeichen(text, t).laenge;
            ++m;
        } else if (m < muster.size() && muster[m] == text[t]) {
            ++t;
            ++m;
        } else if (stern != std::string_view::npos) {
            nach_stern += utf8_zeichen(text, nach_stern).laenge;
            t = nach_stern;
            m = stern;
        } else {
            return false;
        }
    }
    return muster.find_first_not_of('*', m) == std::string_view::npos;
}

struct Ordnerende {
    void operator()(DIR* offen) const { closedir(offen); }
};

bool ist_ordner(DIR* offen, const dirent& eintrag) {
    if (eintrag.d_type != DT_UNKNOWN && eintrag.d_type != DT_LNK) {
        return eintrag.d_type == DT_DIR;
    }
    struct stat auskunft {};
    return fstatat(dirfd(offen), eintrag.d_name, &auskunft, 0) == 0 && S_ISDIR(auskunft.st_mode);
}

/// Calls `weiter` with the name of each entry that is no folder.
template <class Weiter> void dateien_durchgehen(const std::string& ort, Weiter weiter) {
    const std::unique_ptr<DIR, Ordnerende> offen(opendir(ort.c_str()));
    if (offen == nullptr) {
        scheitern(errno == ENOENT ? ENOTDIR : errno, ort + "/"); // it is the folder that is missing
    }
    errno = 0;
    while (const dirent* eintrag = readdir(offen.get())) {
        if (!ist_ordner(offen.get(), *eintrag)) {
            weiter(std::string(eintrag->d_name));
        }
        errno = 0;
    }
    if (errno != 0) {
        scheitern(errno, ort + "/");
    }
}

} // namespace

std::vector<std::string> DATEIEN_SUCHEN(const std::string& ordner, std::string_view muster) {
    const std::string gross = muster == "*.*" ? "*" : grossbuchstaben(muster);
    const bool versteckte = !gross.empty() && gross.front() == '.';
    std::vector<std::pair<std::string, std::string>> funde; // without case, and as it is
    dateien_durchgehen(ort_von(ordner), [&](std::string name) {
        std::string schluessel = grossbuchstaben(name);
        if ((versteckte || name.front() != '.') && passt(schluessel, gross)) {
            funde.emplace_back(std::move(schluessel), std::move(name));
        }
    });
    std::sort(funde.begin(), funde.end());
    std::vector<std::string> namen;
    namen.reserve(funde.size());
    for (auto& fund : funde) {
        namen.push_back(std::move(fund.second));
    }
    return namen;
}

} // namespace quittika
