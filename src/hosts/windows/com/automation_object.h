#pragma once

#include <string>
#include <vector>

#include "hosts/windows/win32/windows_h.h"

namespace windows {

// What all automation objects have in common: their references are counted, nobody is told their types, and their
// methods are found by name.
class AutomationObject : public IDispatch {
 public:
  AutomationObject(const AutomationObject&) = delete;
  AutomationObject& operator=(const AutomationObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;

 protected:
  // With one reference, which its maker owns.
  AutomationObject() = default;
  virtual ~AutomationObject() = default;

  // Finds the first name without regard to case; methods are numbered from 1 in their order. Names after it would be
  // those of arguments, which have none.
  static HRESULT find(const std::vector<std::string>& methods, LPOLESTR* names, UINT count, DISPID* ids);

 private:
  ULONG references_ = 1;
};

}  // namespace windows
