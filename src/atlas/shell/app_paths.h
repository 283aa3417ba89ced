#pragma once

#include <cstdint>
#include <string>

#include "platform/registry.h"
#include "platform/variant.h"

namespace atlas {

class Atlas;

// Reads a value of an open registry key into `result`: a text without its terminator, or a 32-bit number. Gives the
// status of the registry's call, 0 for success; -1, with `result` as it was, for a value that is neither or cannot be
// read. A text whose second reading fails leaves `result` empty.
std::int32_t LeerValorRegistro(platform::Registry& registry, platform::RegistryKey key, const std::string& name,
                               platform::Variant& result);

// Finds the map engine and a PDF viewer through the machine's App Paths. Returns with AcrobatInstalado and
// AcrobatProInstalado set, or ends the program with a message when there is no map engine.
void ComprobarMapInfo(Atlas& atlas);

}  // namespace atlas
