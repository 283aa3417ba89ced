#pragma once

#include <memory>
#include <optional>
#include <string>

#include "engine/call_log.h"
#include "engine/engine_windows.h"
#include "engine/live_objects.h"
#include "engine/orders.h"
#include "engine/settings.h"
#include "hosts/windows/com/automation_object.h"
#include "hosts/windows/com/com_ptr.h"
#include "wire/conversation.h"

namespace testengine {

// The map engine's program id.
inline constexpr const wchar_t* kProgramId = L"MapInfo.runtime";

// An engine with the methods "do", "eval" and "SetCallback". A relay behind a connection
// knows what they mean; whatever fails there is an exception here, with its description and the error number
// DISP_E_EXCEPTION.
class TestEngine final : public windows::AutomationObject {
 public:
  // With one reference, which the caller owns. Fails with std::runtime_error when there is no relay.
  [[nodiscard]] static windows::ComPtr<TestEngine> create();

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

 private:
  explicit TestEngine(const Settings& settings);
  ~TestEngine() override;

  [[nodiscard]] wire::Fields ask(const wire::Fields& question);
  [[nodiscard]] wire::Fields answer(const wire::Fields& question);
  HRESULT obey(DISPID id, VARIANT& argument, VARIANT* result, EXCEPINFO* exception);
  HRESULT passOn(const wire::Fields& question, VARIANT* result, EXCEPINFO* exception);
  HRESULT setCallback(VARIANT& argument, EXCEPINFO* exception);
  HRESULT callBackNow(const std::string& words, EXCEPINFO* exception);
  // The program's callback object does what its method does; false when it has no such method.
  [[nodiscard]] bool callBack(const std::string& method, const std::string& message);
  [[nodiscard]] bool carryOut(const wire::Fields& order);
  void noteApplicationWindow(const std::string& statement);

  LiveObject alive_;
  CallLog log_;
  windows::ComPtr<IDispatch> callback_;
  wire::Line line_;
  wire::Conversation conversation_{line_};
  EngineWindows windows_;
  HWND frame_ = nullptr;
  // Calls until what a test has ordered; 0 for never.
  int diesAfter_ = 0;
  int asksAfter_ = 0;
  Orders orders_;
};

}  // namespace testengine
