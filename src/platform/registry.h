#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The machine's registry of installed programs, below its local-machine root.
namespace platform {

using RegistryKey = std::int32_t;  // 0 is no key

inline constexpr std::int32_t kRegistrySuccess = 0;
inline constexpr std::int32_t kRegistryNotFound = 2;
inline constexpr std::int32_t kRegistryInvalidHandle = 6;

inline constexpr std::uint32_t kRegistryText = 1;          // REG_SZ
inline constexpr std::uint32_t kRegistryExpandedText = 2;  // REG_EXPAND_SZ
inline constexpr std::uint32_t kRegistryBinary = 3;        // REG_BINARY
inline constexpr std::uint32_t kRegistryNumber = 4;        // REG_DWORD

inline constexpr std::uint32_t kKeyQueryValue = 1;

class Registry {
 public:
  virtual ~Registry() = default;

  struct Opened {
    std::int32_t status = kRegistrySuccess;
    RegistryKey key = 0;
  };
  // Opens a key for the access right given. On failure the status says why and the key is 0.
  [[nodiscard]] virtual Opened openKey(const std::string& path, std::uint32_t access) = 0;

  struct Queried {
    std::int32_t status = kRegistrySuccess;
    std::uint32_t type = 0;
    std::uint32_t size = 0;          // bytes the value takes, a text's terminator included
    std::vector<std::uint8_t> data;  // filled up to the buffer's size; text is in UTF-8 with its terminator
  };
  // Reads a value's type and size, and its data where `bufferSize` is not 0.
  [[nodiscard]] virtual Queried queryValue(RegistryKey key, const std::string& name, std::uint32_t bufferSize) = 0;

  virtual void closeKey(RegistryKey key) = 0;
};

}  // namespace platform
