#include "hosts/windows/browser/page_site.h"

#include <exdispid.h>
#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "hosts/windows/com/ole_variant.h"

namespace windows {
namespace {

class Site : public ::testing::Test {
 protected:
  // What the control tells before it goes somewhere; whether it was stopped. An argument may be passed through another
  // variant.
  bool stops(const char* address, bool throughAnother = false) {
    OleVariant text(address);
    std::array<VARIANT, 7> arguments{};
    for (VARIANT& argument : arguments) VariantInit(&argument);
    VARIANT_BOOL cancelled = VARIANT_FALSE;
    arguments[0].vt = VT_BOOL | VT_BYREF;
    arguments[0].pboolVal = &cancelled;
    arguments[5] = text.get();
    if (throughAnother) {
      arguments[5].vt = VT_VARIANT | VT_BYREF;
      arguments[5].pvarVal = &text.get();
    }
    EXPECT_EQ(tell(DISPID_BEFORENAVIGATE2, arguments), S_OK);
    return cancelled != VARIANT_FALSE;
  }
  template <std::size_t kCount>
  HRESULT tell(DISPID event, std::array<VARIANT, kCount>& arguments, WORD flags = DISPATCH_METHOD) {
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    return site->Invoke(event, IID_NULL, 0, flags, &parameters, nullptr, nullptr, nullptr);
  }

  std::vector<std::wstring> asked;
  PageSite::Gate gate = [](const std::wstring& address) { return address.starts_with(L"file:"); };
  ComPtr<PageSite> site = PageSite::create(nullptr, [this](const std::wstring& address) {
    asked.push_back(address);
    return gate(address);
  });
};

TEST_F(Site, GoesWhereTheGateLetsIt) {
  EXPECT_FALSE(stops("file:///C:/Veldoria/año.html"));
  EXPECT_TRUE(stops("http://localhost/"));
  EXPECT_FALSE(stops("file:///C:/a.html", true));
  EXPECT_TRUE(stops("javascript:alert(1)", true));
  EXPECT_EQ(asked.front(), L"file:///C:/Veldoria/año.html");
  EXPECT_EQ(asked.size(), 4U);
}

TEST_F(Site, GoesNowhereWhenTheGateFails) {
  gate = [](const std::wstring&) -> bool { throw std::runtime_error("nada"); };
  EXPECT_TRUE(stops("file:///C:/a.html"));
}

TEST_F(Site, OpensNoWindows) {
  for (const DISPID event : {DISPID_NEWWINDOW2, DISPID_NEWWINDOW3}) {
    VARIANT_BOOL cancelled = VARIANT_FALSE;
    std::array<VARIANT, 2> arguments{};
    arguments[0].vt = VT_BOOL | VT_BYREF;
    arguments[0].pboolVal = &cancelled;
    EXPECT_EQ(tell(event, arguments), S_OK);
    EXPECT_EQ(cancelled, VARIANT_TRUE) << event;
  }
}

TEST_F(Site, LeavesWhatItIsNotAskedToTheControl) {
  std::array<VARIANT, 1> few{};
  EXPECT_EQ(tell(DISPID_BEFORENAVIGATE2, few), S_OK);
  EXPECT_EQ(tell(DISPID_BEFORENAVIGATE2, few, DISPATCH_PROPERTYGET), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(site->Invoke(DISPID_BEFORENAVIGATE2, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
            E_INVALIDARG);
  site->leave();
  EXPECT_FALSE(stops("http://localhost/")) << "its view is gone";
  EXPECT_EQ(asked.size(), 0U);
}

}  // namespace
}  // namespace windows
