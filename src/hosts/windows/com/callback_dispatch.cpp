#include "hosts/windows/com/callback_dispatch.h"

#include <oleauto.h>

#include <exception>

#include "hosts/windows/com/ole_variant.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/failure.h"

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

HRESULT CallbackDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (object_ == nullptr) return RPC_E_DISCONNECTED;
  try {
    return find(object_->methods(), names, count, ids);
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
