#include "motor/tables/read_failure.h"

#include <string>

#include "motor/language/error.h"

namespace motor {
namespace {

std::string quotedName(const std::filesystem::path& file) {
  const std::u8string name = file.filename().u8string();
  return "«" + std::string(name.begin(), name.end()) + "»";
}

}  // namespace

void failMissing(const std::filesystem::path& file) {
  throw EngineError("No se encuentra la tabla " + quotedName(file));
}

void failDamaged(const std::filesystem::path& file) {
  throw EngineError("La tabla " + quotedName(file) + " está dañada o incompleta y no se puede leer");
}

void failForbidden(const std::filesystem::path& file) {
  throw EngineError("La tabla " + quotedName(file) + " está fuera de las carpetas que se pueden leer");
}

}  // namespace motor
