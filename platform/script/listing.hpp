#pragma once

#include "platform/recording.hpp"

#include <string>
#include <vector>

namespace quittika {

/// The job as lines of the protocol.
std::vector<std::string> listing(const RecordedJob& job);

} // namespace quittika
