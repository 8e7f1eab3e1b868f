#pragma once

namespace quittika {

/// The program's name, title of its questions.
inline constexpr const char* kProgrammname = "Quittika 2008";
/// Name of the executable file.
inline constexpr const char* kProgrammdatei = "quittika";

namespace version {
inline constexpr int kHaupt = 1;
inline constexpr int kNeben = 0;
inline constexpr int kRevision = 0;
} // namespace version

} // namespace quittika
