#include "com/class_factory.h"

#include <stdexcept>

namespace comserver {

HRESULT ClassFactory::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  const bool known = id == IID_IUnknown || id == IID_IClassFactory;
  *result = known ? static_cast<IClassFactory*>(this) : nullptr;
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** result) {
  *result = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  try {
    return make_()->QueryInterface(id, result);
  } catch (const std::runtime_error&) {
    return E_FAIL;
  }
}

}  // namespace comserver
