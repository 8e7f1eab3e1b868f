#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quittika {

/// Walks the bytes of a file of lines "key:value;" and hands over key, in capitals, and value of each until
/// `weiter` answers false. The first ":" ends a key, the first ";" behind it or the line's end the value; a
/// line without ":" is none.
void SCHLUESSELZEILEN_DURCHGEHEN(
    std::string_view bytes,
    const std::function<bool(const std::string& schluessel, const std::string& wert)>& weiter);

} // namespace quittika
