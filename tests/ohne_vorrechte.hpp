#pragma once

#include <gtest/gtest.h>

#include <string>

#include <unistd.h>

namespace quittika {

/// Acts as a user who may not write everywhere, for its lifetime.
class OhneVorrechte {
public:
    explicit OhneVorrechte(const std::string& ordner, const std::string& datei = {})
        : war_root_(geteuid() == 0) {
        const auto verschenkt = [](const std::string& pfad) {
            return chown(pfad.c_str(), kNiemand, kNiemand) == 0;
        };
        if (war_root_ &&
            (!verschenkt(ordner) || (!datei.empty() && !verschenkt(datei)) || seteuid(kNiemand) != 0)) {
            ADD_FAILURE() << "cannot give up the rights of root";
        }
    }
    OhneVorrechte(const OhneVorrechte&) = delete;
    OhneVorrechte& operator=(const OhneVorrechte&) = delete;
    ~OhneVorrechte() {
        if (war_root_ && seteuid(0) != 0) {
            ADD_FAILURE() << "cannot take back the rights of root";
        }
    }

private:
    static constexpr uid_t kNiemand = 65534;
    bool war_root_;
};

} // namespace quittika
