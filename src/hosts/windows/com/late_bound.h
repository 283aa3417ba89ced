#pragma once

#include <map>
#include <string>

#include "hosts/windows/com/com_ptr.h"
#include "hosts/windows/com/ole_variant.h"

namespace windows {

// An automation object whose methods and properties are called by their names, each asked for once. Everything fails
// with what `failureOf` makes of the answer.
class LateBound {
 public:
  explicit LateBound(ComPtr<IDispatch> object) : object_(std::move(object)) {}

  [[nodiscard]] IDispatch* object() const { return object_.get(); }

  // Calls a method with one argument, as a statement.
  void call(const wchar_t* method, VARIANT& argument);
  // Calls a method with one argument for its result.
  [[nodiscard]] platform::Variant ask(const wchar_t* method, VARIANT& argument);
  // Reads a property.
  [[nodiscard]] platform::Variant read(const wchar_t* property);

 private:
  [[nodiscard]] DISPID idOf(const ComPtr<IDispatch>& object, const wchar_t* name);
  void invoke(const wchar_t* name, WORD flags, DISPPARAMS parameters, VARIANT* result);

  ComPtr<IDispatch> object_;
  std::map<std::wstring, DISPID> ids_;
};

}  // namespace windows
