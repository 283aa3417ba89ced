#include "engine/engine_class.h"

#include "engine/test_engine.h"

namespace testengine {

IClassFactory& engineFactory() {
  static comserver::ClassFactory factory([] { return windows::ComPtr<IUnknown>(TestEngine::create().get()); });
  return factory;
}

}  // namespace testengine
