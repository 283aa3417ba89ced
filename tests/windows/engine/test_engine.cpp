#include "engine/test_engine.h"

#include <algorithm>
#include <charconv>

#include "com/module.h"
#include "hosts/windows/com/ole_variant.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/utf8.h"

namespace testengine {
namespace {

using windows::ComPtr;
using windows::wide;

// The methods in their order.
constexpr DISPID kDo = 1;
constexpr DISPID kEval = 2;
constexpr DISPID kSetCallback = 3;

constexpr std::string_view kApplicationWindow = "set application window ";

// A statement that only this engine knows: "call back METHOD MESSAGE" does so before it is done.
constexpr std::string_view kCallBack = "call back ";
// An expression that it answers by itself: "here TEXT" is the text.
constexpr std::string_view kHere = "here ";

HRESULT fail(EXCEPINFO* exception, const std::string& description) {
  if (exception == nullptr) return DISP_E_EXCEPTION;
  *exception = {};
  exception->scode = DISP_E_EXCEPTION;
  exception->bstrSource = SysAllocString(kProgramId);
  exception->bstrDescription = SysAllocString(wide(description).c_str());
  return DISP_E_EXCEPTION;
}

// The object of an argument, given as it is or by reference; null where it is none.
ComPtr<IDispatch> objectOf(VARIANT& argument) {
  windows::OleVariant plain;
  if (FAILED(VariantCopyInd(&plain.get(), &argument))) return {};
  const VARTYPE type = plain.get().vt;
  if (type != VT_DISPATCH && type != VT_UNKNOWN) return {};
  return ComPtr<IUnknown>(plain.get().punkVal).as<IDispatch>();
}

HRESULT give(const std::string& answer, VARIANT* result) {
  if (result == nullptr) return S_OK;
  const std::wstring text = wide(answer);
  VariantInit(result);
  result->vt = VT_BSTR;
  result->bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return S_OK;
}

// Counts a call towards the one that something was ordered for; 0 where nothing was.
bool isDue(int& callsLeft) { return callsLeft > 0 && --callsLeft == 0; }

LRESULT CALLBACK handleFrame(HWND window, UINT message, WPARAM wideArgument, LPARAM large) {
  return DefWindowProcW(window, message, wideArgument, large);
}

// The engine's own top-level window, hidden, titled as the outside engine's is.
HWND openFrame() {
  static const ATOM windowClass = [] {
    WNDCLASSW description{};
    description.lpfnWndProc = handleFrame;
    description.hInstance = comserver::thisModule();
    description.lpszClassName = L"MapEngineUnderTestFrame";
    return RegisterClassW(&description);
  }();
  return CreateWindowExW(0, MAKEINTATOM(windowClass), L"MapInfo", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr,
                         comserver::thisModule(), nullptr);
}

}  // namespace

ComPtr<TestEngine> TestEngine::create() { return ComPtr<TestEngine>::owning(new TestEngine(Settings::read())); }

TestEngine::TestEngine(const Settings& settings)
    : log_(settings.log),
      line_(settings.port),
      windows_([this](const wire::Fields& question) {
        const ComPtr<TestEngine> self(this);  // whatever comes of the question
        return ask(question);
      }),
      orders_([this](const wire::Fields& order) {
        const ComPtr<TestEngine> self(this);
        return carryOut(order);
      }) {
  conversation_.answer = [this](const wire::Fields& question) { return answer(question); };
  log_.write("create");
  (void)ask({"open", settings.run});
  if (settings.hasFrame) frame_ = openFrame();
}

TestEngine::~TestEngine() {
  log_.write("release");
  if (frame_ != nullptr) DestroyWindow(frame_);
}

HRESULT TestEngine::GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) {
  return find({"do", "eval", "SetCallback"}, names, count, ids);
}

HRESULT TestEngine::Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD /*flags*/, DISPPARAMS* parameters,
                           VARIANT* result, EXCEPINFO* exception, UINT* /*badArgument*/) {
  if (id < kDo || id > kSetCallback) return DISP_E_MEMBERNOTFOUND;
  if (parameters->cArgs != 1) return DISP_E_BADPARAMCOUNT;
  const ComPtr<TestEngine> self(this);  // the program may let go of it meanwhile
  if (isDue(asksAfter_)) MessageBoxW(nullptr, L"A question of the engine's", L"MapInfo", MB_OK);
  const bool dies = isDue(diesAfter_);
  const HRESULT answer = obey(id, parameters->rgvarg[0], result, exception);
  if (dies) TerminateProcess(GetCurrentProcess(), 1);
  return answer;
}

HRESULT TestEngine::obey(DISPID id, VARIANT& argument, VARIANT* result, EXCEPINFO* exception) {
  try {
    if (id == kSetCallback) return setCallback(argument, exception);
    const std::string text = windows::textOf(argument);
    if (id == kDo) noteApplicationWindow(text);
    if (id == kDo && text.starts_with(kCallBack)) return callBackNow(text.substr(kCallBack.size()), exception);
    if (id == kEval && text.starts_with(kHere)) return give(text.substr(kHere.size()), result);
    return passOn({id == kDo ? "do" : "eval", text}, result, exception);
  } catch (const std::exception& problem) {
    return fail(exception, problem.what());
  }
}

HRESULT TestEngine::passOn(const wire::Fields& question, VARIANT* result, EXCEPINFO* exception) {
  log_.write(question[0] + " " + question[1]);
  const wire::Fields given = ask(question);
  if (given.at(0) == "failed") return fail(exception, given.at(2));
  return given.at(0) == "value" ? give(given.at(1), result) : S_OK;
}

HRESULT TestEngine::setCallback(VARIANT& argument, EXCEPINFO* exception) {
  log_.write("SetCallback");
  ComPtr<IDispatch> object = objectOf(argument);
  if (!object) return DISP_E_TYPEMISMATCH;
  const bool isFirst = !callback_;
  callback_ = std::move(object);
  if (!isFirst) return S_OK;  // the relay calls whichever is there
  const wire::Fields given = ask({"callback-set"});
  return given.at(0) == "failed" ? fail(exception, given.at(2)) : S_OK;
}

wire::Fields TestEngine::ask(const wire::Fields& question) { return conversation_.ask(question); }

wire::Fields TestEngine::answer(const wire::Fields& question) {
  if (question[0] == "call") return {"done", callBack(question.at(1), question.at(2)) ? "yes" : "no"};
  wire::Fields done = windows_.handle(question);
  if (done.empty()) throw std::runtime_error("no such wish: " + question[0]);
  return done;
}

bool TestEngine::callBack(const std::string& method, const std::string& message) {
  log_.write("call " + method + " " + message);
  const ComPtr<IDispatch> callback = callback_;  // the method may replace it
  if (!callback) return false;
  std::wstring name = wide(method);
  LPOLESTR names = name.data();
  DISPID id = DISPID_UNKNOWN;
  if (FAILED(callback->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) return false;
  windows::OleVariant argument(message);
  DISPPARAMS parameters{&argument.get(), nullptr, 1, 0};
  const HRESULT status =
      callback->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
  if (FAILED(status)) log_.write("call failed " + std::to_string(status));
  return SUCCEEDED(status);
}

HRESULT TestEngine::callBackNow(const std::string& words, EXCEPINFO* exception) {
  const std::size_t blank = std::min(words.find(' '), words.size());
  const std::string message = words.substr(std::min(blank + 1, words.size()));
  return callBack(words.substr(0, blank), message) ? S_OK : fail(exception, "no such method");
}

bool TestEngine::carryOut(const wire::Fields& order) {
  try {
    const std::string& what = order.at(0);
    if (what == "mapclick") return ask(order).at(0) == "done";
    if (what == "callback") return callBack(order.at(1), order.at(2));
    if (what == "die") diesAfter_ = std::stoi(order.at(1));
    if (what == "box") asksAfter_ = std::stoi(order.at(1));
    return what == "die" || what == "box";
  } catch (const std::exception&) {
    return false;
  }
}

void TestEngine::noteApplicationWindow(const std::string& statement) {
  const std::string lower = text::lower(statement);
  if (!lower.starts_with(kApplicationWindow)) return;
  long long handle = 0;
  std::from_chars(lower.data() + kApplicationWindow.size(), lower.data() + lower.size(), handle);
  windows_.setApplicationWindow(reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle)));
}

}  // namespace testengine
