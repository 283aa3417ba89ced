#include "hosts/windows/com/ole_failure.h"

#include <gtest/gtest.h>
#include <oleauto.h>

namespace windows {
namespace {

TEST(OleFailure, KnowsTheNumbersOfThePrograms) {
  EXPECT_EQ(failureOf(DISP_E_EXCEPTION).number(), failures::kEngineRejected);
  EXPECT_EQ(failureOf(DISP_E_UNKNOWNNAME).number(), failures::kNoSuchMember);
  EXPECT_EQ(failureOf(static_cast<HRESULT>(0x800706BA)).number(), 462);
  EXPECT_EQ(failureOf(static_cast<HRESULT>(0x800706BE)).number(), -2147023170);
  EXPECT_EQ(failureOf(static_cast<HRESULT>(0x8004ABCD)).number(), static_cast<int>(0x8004ABCD));
}

TEST(OleFailure, TellsAnEngineThatIsGoneFromOneThatRefuses) {
  for (const unsigned gone : {0x800706BAU, 0x800706BEU, 0x800706BFU, 0x80010007U, 0x80010012U, 0x80010108U}) {
    EXPECT_TRUE(saysItIsGone(failureOf(static_cast<HRESULT>(gone)).number())) << std::hex << gone;
  }
  for (const HRESULT there : {DISP_E_EXCEPTION, DISP_E_UNKNOWNNAME, RPC_E_SERVERFAULT, RPC_E_CALL_CANCELED}) {
    EXPECT_FALSE(saysItIsGone(failureOf(there).number())) << std::hex << there;
  }
}

TEST(OleFailure, PrefersWhatTheOtherSideSaid) {
  EXPECT_EQ(failureOf(DISP_E_EXCEPTION, "Tabla desconocida").description(), "Tabla desconocida");
  EXPECT_EQ(failureOf(DISP_E_EXCEPTION).description(), "El motor de mapas ha rechazado la instrucción.");
  EXPECT_FALSE(failureOf(static_cast<HRESULT>(0x80030002)).description().empty());
}

HRESULT STDMETHODCALLTYPE fillIn(EXCEPINFO* exception) {
  exception->bstrDescription = SysAllocString(L"Más tarde");
  return S_OK;
}

TEST(OleFailure, TakesTheDescriptionOutOfAnAnswer) {
  EXCEPINFO exception{};
  exception.bstrSource = SysAllocString(L"motor");
  exception.bstrDescription = SysAllocString(L"Error de sintaxis en ñ");
  EXPECT_EQ(takeDescription(exception), "Error de sintaxis en ñ");
  EXPECT_EQ(exception.bstrDescription, nullptr);
  EXPECT_EQ(exception.bstrSource, nullptr);

  EXCEPINFO deferred{};
  deferred.pfnDeferredFillIn = fillIn;
  EXPECT_EQ(takeDescription(deferred), "Más tarde");
}

}  // namespace
}  // namespace windows
