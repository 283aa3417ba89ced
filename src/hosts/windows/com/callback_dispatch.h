#pragma once

#include <memory>

#include "hosts/windows/com/automation_object.h"
#include "hosts/windows/com/com_ptr.h"
#include "platform/map_engine.h"

namespace windows {

// A callback object as the engine sees it: an IDispatch whose names are the object's methods. Every method takes one
// text and gives nothing. No exception leaves it: what fails inside is answered with DISP_E_EXCEPTION and a
// description.
class CallbackDispatch final : public AutomationObject {
 public:
  // With one reference, which the caller owns.
  [[nodiscard]] static ComPtr<CallbackDispatch> create(std::shared_ptr<platform::CallbackObject> object);

  // Lets go of the object: whoever still holds a reference calls nobody (RPC_E_DISCONNECTED).
  void disconnect();

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

 private:
  explicit CallbackDispatch(std::shared_ptr<platform::CallbackObject> object) : object_(std::move(object)) {}
  [[nodiscard]] HRESULT call(DISPID id, const VARIANT& argument) const;

  std::shared_ptr<platform::CallbackObject> object_;
};

}  // namespace windows
