#include "hosts/windows/com/automation_object.h"

#include <algorithm>

#include "hosts/windows/win32/wide_text.h"
#include "text/utf8.h"

namespace windows {

HRESULT AutomationObject::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (id != IID_IUnknown && id != IID_IDispatch) return E_NOINTERFACE;
  *result = static_cast<IDispatch*>(this);
  AddRef();
  return S_OK;
}

ULONG AutomationObject::Release() {
  const ULONG left = --references_;
  if (left > 0) return left;
  references_ = 1;  // what happens while it goes may hold it again
  delete this;
  return 0;
}

HRESULT AutomationObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT AutomationObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT AutomationObject::find(const std::vector<std::string>& methods, LPOLESTR* names, UINT count, DISPID* ids) {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const std::string wanted = utf8(names[0]);
  const auto found =
      std::ranges::find_if(methods, [&](const auto& method) { return text::equalsIgnoringCase(method, wanted); });
  if (found == methods.end()) return DISP_E_UNKNOWNNAME;
  ids[0] = static_cast<DISPID>(found - methods.begin()) + 1;
  return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

}  // namespace windows
