#include "motor/tables/select_memory.h"

#include "motor/language/error.h"

namespace motor {

namespace {

constexpr std::size_t kMaximumBytes = std::size_t{256} << 20;

}  // namespace

void SelectMemory::add(std::size_t bytes) {
  bytes_ += bytes;
  if (bytes_ > kMaximumBytes)
    throw EngineError("los valores que calcula la selección son demasiados o demasiado largos");
}

}  // namespace motor
