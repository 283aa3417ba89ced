#include "hosts/windows/ports/ole_engines.h"

#include "hosts/windows/com/callback_reference.h"
#include "hosts/windows/com/late_bound.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/failure.h"

namespace windows {
namespace {

class OleEngine : public platform::MapEngine {
 public:
  explicit OleEngine(ComPtr<IDispatch> object) : engine_(std::move(object)) {}

  // The pointer says that the program waits until the call into the program returns.
  void run(const std::string& statements) override {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    OleVariant text(statements);
    engine_.call(L"do", text.get());
  }

  [[nodiscard]] platform::Variant eval(const std::string& expression) override {
    OleVariant text(expression);
    return engine_.ask(L"eval", text.get());
  }

  // By reference, as a variable is passed. What the engine puts there instead is let go of, and so is a callback object
  // that it refuses; the one before it stays.
  void setCallback(std::shared_ptr<platform::CallbackObject> callback) override {
    CallbackReference next(std::move(callback));
    ComPtr<IDispatch> variable(next.get());
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_DISPATCH | VT_BYREF;
    argument.ppdispVal = variable.inOut();
    engine_.call(L"SetCallback", argument);
    callback_ = std::move(next);
  }

 private:
  LateBound engine_;
  CallbackReference callback_;
};

}  // namespace

std::shared_ptr<platform::MapEngine> OleEngines::create(const std::string& programId) {
  CLSID id;
  if (FAILED(CLSIDFromProgID(wide(programId).c_str(), &id))) throw failures::cannotCreateObject();
  ComPtr<IDispatch> object;
  const HRESULT created = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch,
                                           reinterpret_cast<void**>(object.put()));
  if (FAILED(created)) throw failures::cannotCreateObject();
  if (!object) return nullptr;
  // Its windows may come to the front, as when it has something to ask.
  CoAllowSetForegroundWindow(object.get(), nullptr);
  return std::make_shared<OleEngine>(std::move(object));
}

}  // namespace windows
