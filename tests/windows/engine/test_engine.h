#pragma once

#include <memory>
#include <optional>
#include <string>

#include "engine/call_log.h"
#include "engine/engine_windows.h"
#include "engine/live_objects.h"
#include "engine/orders.h"
#include "engine/settings.h"
#include "hosts/windows/com/com_ptr.h"
#include "hosts/windows/win32/windows_h.h"
#include "wire/conversation.h"

namespace testengine {

// The map engine's program id.
inline constexpr const wchar_t* kProgramId = L"MapInfo.runtime";

// An engine whose methods "do", "eval" and "SetCallback" are found by name in any case. A relay behind a connection
// knows what they mean; whatever fails there is an exception here, with its description and the error number
// DISP_E_EXCEPTION.
class TestEngine final : public IDispatch {
 public:
  // With one reference, which the caller owns. Fails with std::runtime_error when there is no relay.
  [[nodiscard]] static windows::ComPtr<TestEngine> create();

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

 private:
  explicit TestEngine(const Settings& settings);
  ~TestEngine();

  [[nodiscard]] wire::Fields ask(const wire::Fields& question);
  [[nodiscard]] wire::Fields answer(const wire::Fields& question);
  HRESULT passOn(const wire::Fields& question, VARIANT* result, EXCEPINFO* exception);
  HRESULT setCallback(VARIANT& argument, EXCEPINFO* exception);
  HRESULT callBackNow(const std::string& words, EXCEPINFO* exception);
  // The program's callback object does what its method does; false when it has no such method.
  [[nodiscard]] bool callBack(const std::string& method, const std::string& message);
  [[nodiscard]] bool carryOut(const wire::Fields& order);
  // What a test has ordered for one of the next calls.
  void countCall();
  void noteApplicationWindow(const std::string& statement);

  ULONG references_ = 1;
  LiveObject alive_;
  CallLog log_;
  windows::ComPtr<IDispatch> callback_;
  wire::Line line_;
  wire::Conversation conversation_{line_};
  EngineWindows windows_;
  HWND frame_ = nullptr;
  int diesAfter_ = 0;  // calls; 0 for never
  int asksAfter_ = 0;
  Orders orders_;
};

}  // namespace testengine
