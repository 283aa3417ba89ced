#include "motor/tables/gdal.h"

#include <dlfcn.h>

#include "motor/language/error.h"

namespace motor {
namespace {

[[noreturn]] void failToLoad(const char* file) {
  const char* reason = dlerror();
  throw EngineError("No se puede cargar la biblioteca «" + std::string(file) + "»" +
                    (reason == nullptr ? std::string() : ": " + std::string(reason)));
}

template <typename Function>
void lookUp(void* library, const char* file, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  if (function == nullptr) failToLoad(file);
}

}  // namespace

Gdal loadGdal(const char* file) {
  void* library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) failToLoad(file);
  Gdal functions;
#define VELDORIA_LOOK_UP(function) lookUp(library, file, #function, functions.function);
  VELDORIA_GDAL_FUNCTIONS(VELDORIA_LOOK_UP)
#undef VELDORIA_LOOK_UP
  functions.RegisterOGRTAB();
  return functions;
}

const Gdal& gdal() {
  static const Gdal functions = loadGdal(VELDORIA_GDAL_LIBRARY);
  return functions;
}

std::string takeGdalText(char* text) {
  std::string copy = text == nullptr ? "" : text;
  gdal().VSIFree(text);
  return copy;
}

}  // namespace motor
