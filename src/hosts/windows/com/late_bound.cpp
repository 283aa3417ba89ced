#include "hosts/windows/com/late_bound.h"

#include "hosts/windows/com/ole_failure.h"

namespace windows {
namespace {

constexpr LCID kLocale = LOCALE_USER_DEFAULT;

DISPPARAMS only(VARIANT& argument) { return {&argument, nullptr, 1, 0}; }

}  // namespace

void LateBound::call(const wchar_t* method, VARIANT& argument) {
  invoke(method, DISPATCH_METHOD, only(argument), nullptr);
}

platform::Variant LateBound::ask(const wchar_t* method, VARIANT& argument) {
  OleVariant result;
  invoke(method, DISPATCH_METHOD | DISPATCH_PROPERTYGET, only(argument), &result.get());
  return result.value();
}

platform::Variant LateBound::read(const wchar_t* property) {
  OleVariant result;
  invoke(property, DISPATCH_PROPERTYGET, {}, &result.get());
  return result.value();
}

DISPID LateBound::idOf(const ComPtr<IDispatch>& object, const wchar_t* name) {
  const auto known = ids_.find(name);
  if (known != ids_.end()) return known->second;
  std::wstring writable(name);
  LPOLESTR names = writable.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT found = object->GetIDsOfNames(IID_NULL, &names, 1, kLocale, &id);
  if (FAILED(found)) throw failureOf(found);
  if (object_.get() == object.get()) ids_.emplace(name, id);
  return id;
}

// The object may be let go of, or another one take its place, while a call to it is under way.
void LateBound::invoke(const wchar_t* name, WORD flags, DISPPARAMS parameters, VARIANT* result) {
  const ComPtr<IDispatch> kept = object_;
  const DISPID id = idOf(kept, name);
  EXCEPINFO exception{};
  const HRESULT answer = kept->Invoke(id, IID_NULL, kLocale, flags, &parameters, result, &exception, nullptr);
  const std::string said = takeDescription(exception);
  if (FAILED(answer)) throw failureOf(answer, answer == DISP_E_EXCEPTION ? said : std::string());
}

}  // namespace windows
