#include "hosts/windows/com/callback_dispatch.h"

#include <oleauto.h>

#include <algorithm>
#include <exception>

#include "hosts/windows/com/ole_variant.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/failure.h"
#include "text/utf8.h"

namespace windows {
namespace {

// Nothing may fail here any more: what does is left out.
void describe(EXCEPINFO* exception, const char* description) noexcept {
  if (exception == nullptr) return;
  *exception = {};
  exception->scode = E_FAIL;
  try {
    exception->bstrSource = SysAllocString(L"Veldoria");
    exception->bstrDescription = SysAllocString(wide(description).c_str());
  } catch (...) {
    exception->bstrDescription = nullptr;
  }
}

}  // namespace

ComPtr<CallbackDispatch> CallbackDispatch::create(std::shared_ptr<platform::CallbackObject> object) {
  return ComPtr<CallbackDispatch>::owning(new CallbackDispatch(std::move(object)));
}

void CallbackDispatch::disconnect() { object_.reset(); }

HRESULT CallbackDispatch::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (id != IID_IUnknown && id != IID_IDispatch) return E_NOINTERFACE;
  *result = static_cast<IDispatch*>(this);
  AddRef();
  return S_OK;
}

ULONG CallbackDispatch::AddRef() { return ++references_; }

ULONG CallbackDispatch::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT CallbackDispatch::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT CallbackDispatch::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

// Names after the first would be those of arguments, which have none.
HRESULT CallbackDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  if (object_ == nullptr) return RPC_E_DISCONNECTED;
  try {
    const std::string wanted = utf8(names[0]);
    const std::vector<std::string> methods = object_->methods();
    const auto found =
        std::ranges::find_if(methods, [&](const auto& method) { return text::equalsIgnoringCase(method, wanted); });
    if (found == methods.end()) return DISP_E_UNKNOWNNAME;
    ids[0] = static_cast<DISPID>(found - methods.begin()) + 1;
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT CallbackDispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                 EXCEPINFO* exception, UINT*) {
  if ((flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
  if (parameters == nullptr || parameters->cArgs != 1) return DISP_E_BADPARAMCOUNT;
  if (result != nullptr) VariantInit(result);
  try {
    return call(id, parameters->rgvarg[0]);
  } catch (const std::exception& problem) {
    describe(exception, problem.what());
  } catch (...) {
    describe(exception, "");
  }
  return DISP_E_EXCEPTION;
}

// The object is shared while it is called: the method may replace it.
HRESULT CallbackDispatch::call(DISPID id, const VARIANT& argument) const {
  const std::shared_ptr<platform::CallbackObject> object = object_;
  if (object == nullptr) return RPC_E_DISCONNECTED;
  const std::vector<std::string> methods = object->methods();
  if (id < 1 || static_cast<std::size_t>(id) > methods.size()) return DISP_E_MEMBERNOTFOUND;
  std::string message;
  try {
    message = textOf(argument);
  } catch (const Failure&) {
    return DISP_E_TYPEMISMATCH;
  }
  return object->invoke(methods[static_cast<std::size_t>(id) - 1], message) ? S_OK : DISP_E_MEMBERNOTFOUND;
}

}  // namespace windows
