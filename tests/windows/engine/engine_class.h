#pragma once

#include "com/class_factory.h"

namespace testengine {

// The class that stands for the map engine's program id.
inline constexpr CLSID kEngineClass = {0x5d0b8c52, 0x3c0e, 0x4c9f, {0x9a, 0x2e, 0x61, 0x0d, 0x7b, 0x44, 0xe1, 0x37}};

// Makes test engines; there is one of it in the process.
[[nodiscard]] IClassFactory& engineFactory();

}  // namespace testengine
