#pragma once

#include <string>
#include <vector>

namespace quittika {

/// A place where a tree of directories begins for the user.
struct Laufwerk {
    std::string pfad; ///< without "/" at its end, but for "/" itself
    std::string name; ///< what the user is told
};

/// The user's home folder without "/" at its end, or "/" where there is none.
std::string HEIMORDNER();

/// The drives that are there at this moment: "/", the user's home folder, and what is mounted under /media,
/// /run/media and /mnt, in the order of the paths. None of them is touched, so that one that does not answer
/// holds nobody up.
/// `tabelle`: the system's list of what is mounted.
std::vector<Laufwerk> LAUFWERKE(const std::string& tabelle = "/proc/self/mounts");

} // namespace quittika
