#include "hosts/windows/com/callback_dispatch.h"

#include <gtest/gtest.h>
#include <oleauto.h>

#include <stdexcept>

#include "hosts/windows/com/ole_failure.h"
#include "hosts/windows/com/ole_variant.h"
#include "text/failure.h"

namespace windows {
namespace {

class Methods : public platform::CallbackObject {
 public:
  [[nodiscard]] std::string className() const override { return "MICallback"; }
  [[nodiscard]] std::vector<std::string> methods() const override { return {"infoEstadisticas", "info", "falla"}; }
  bool invoke(const std::string& method, const std::string& message) override {
    if (method == "falla" && message == "otra") throw std::runtime_error("otra cosa");
    if (method == "falla" && message == "ninguna") throw 1;
    if (method == "falla") throw Failure(failures::kNoObject, "no hay objeto");
    heard = method + " " + message;
    return true;
  }
  std::string heard;
};

class Callback : public ::testing::Test {
 protected:
  HRESULT find(const wchar_t* name, DISPID& id) {
    std::wstring writable(name);
    LPOLESTR names = writable.data();
    return dispatch->GetIDsOfNames(IID_NULL, &names, 1, 0, &id);
  }
  HRESULT call(DISPID id, DISPPARAMS parameters, WORD flags = DISPATCH_METHOD) {
    return dispatch->Invoke(id, IID_NULL, 0, flags, &parameters, nullptr, &exception, nullptr);
  }
  HRESULT call(DISPID id, const char* message) {
    OleVariant text(message);
    return call(id, {&text.get(), nullptr, 1, 0});
  }

  std::shared_ptr<Methods> object = std::make_shared<Methods>();
  ComPtr<CallbackDispatch> dispatch = CallbackDispatch::create(object);
  EXCEPINFO exception{};
};

TEST_F(Callback, FindsItsNamesWithoutRegardToCase) {
  DISPID id = 0;
  EXPECT_EQ(find(L"InfoEstadisticas", id), S_OK);
  EXPECT_EQ(id, 1);
  EXPECT_EQ(find(L"INFO", id), S_OK);
  EXPECT_EQ(id, 2);
  EXPECT_EQ(find(L"InfoDatos", id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(Callback, PassesTheMessageOn) {
  EXPECT_EQ(call(2, "MI:10.5,20.5"), S_OK);
  EXPECT_EQ(object->heard, "info MI:10.5,20.5");
}

TEST_F(Callback, TakesWhatCanBecomeAText) {
  OleVariant text("MI:año");
  VARIANT reference;
  VariantInit(&reference);
  reference.vt = VT_VARIANT | VT_BYREF;
  reference.pvarVal = &text.get();
  EXPECT_EQ(call(1, {&reference, nullptr, 1, 0}), S_OK);
  EXPECT_EQ(object->heard, "infoEstadisticas MI:año");

  OleVariant number;
  number.get().vt = VT_I4;
  number.get().lVal = 7;
  EXPECT_EQ(call(1, {&number.get(), nullptr, 1, 0}), S_OK);
  EXPECT_EQ(object->heard, "infoEstadisticas 7");
}

TEST_F(Callback, RefusesWhatIsNoCallOfAMethod) {
  OleVariant text("MI:1,2");
  OleVariant nothing;
  nothing.get().vt = VT_UNKNOWN;
  nothing.get().punkVal = nullptr;
  EXPECT_EQ(call(0, "MI:1,2"), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(call(4, "MI:1,2"), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(call(1, {nullptr, nullptr, 0, 0}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call(1, {&nothing.get(), nullptr, 1, 0}), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(call(1, {&text.get(), nullptr, 1, 0}, DISPATCH_PROPERTYGET), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(object->heard, "");
}

TEST_F(Callback, LetsNoExceptionOut) {
  EXPECT_EQ(call(3, "fallo"), DISP_E_EXCEPTION);
  EXPECT_EQ(takeDescription(exception), "no hay objeto");
  EXPECT_EQ(call(3, "otra"), DISP_E_EXCEPTION);
  EXPECT_EQ(takeDescription(exception), "otra cosa");
  EXPECT_EQ(call(3, "ninguna"), DISP_E_EXCEPTION);
  EXPECT_EQ(takeDescription(exception), "");
}

TEST_F(Callback, DisconnectedCallsNobody) {
  dispatch->disconnect();
  EXPECT_EQ(object.use_count(), 1);
  DISPID id = 0;
  EXPECT_EQ(find(L"info", id), RPC_E_DISCONNECTED);
  EXPECT_EQ(call(2, "MI:1,2"), RPC_E_DISCONNECTED);
  EXPECT_EQ(object->heard, "");
}

TEST_F(Callback, IsCounted) {
  EXPECT_EQ(dispatch->AddRef(), 2U);
  EXPECT_EQ(dispatch->Release(), 1U);
  void* other = nullptr;
  EXPECT_EQ(dispatch->QueryInterface(IID_IDispatch, &other), S_OK);
  EXPECT_EQ(other, static_cast<IDispatch*>(dispatch.get()));
  EXPECT_EQ(dispatch->Release(), 1U);
  EXPECT_EQ(dispatch->QueryInterface(IID_IOleObject, &other), E_NOINTERFACE);
  EXPECT_EQ(other, nullptr);
}

}  // namespace
}  // namespace windows
