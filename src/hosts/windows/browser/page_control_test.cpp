#include "hosts/windows/browser/page_control.h"

#include <exdisp.h>
#include <gtest/gtest.h>

#include "hosts/windows/com/ole_thread.h"
#include "hosts/windows/win32/handles.h"
#include "text/failure.h"

namespace windows {
namespace {

// Stands for the system's browser control: one that takes its site but cannot be shown.
class UnshownControl final : public IOleObject, public IDispatch {
 public:
  [[nodiscard]] bool isClosed() const { return closed_; }
  [[nodiscard]] bool hasSite() const { return static_cast<bool>(site_); }
  [[nodiscard]] ULONG references() const { return references_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    *result = nullptr;
    if (id == IID_IUnknown || id == IID_IOleObject) *result = static_cast<IOleObject*>(this);
    if (id == IID_IDispatch) *result = static_cast<IDispatch*>(this);
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }

  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override {
    site_ = ComPtr<IOleClientSite>(site);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Close(DWORD) override {
    closed_ = true;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DoVerb(LONG, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override { return E_FAIL; }

  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Update() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }

 private:
  ULONG references_ = 1;
  ComPtr<IOleClientSite> site_;
  bool closed_ = false;
};

// The class of the system's browser control, in this process and as long as it lives.
class BrowserClass final : public IClassFactory {
 public:
  explicit BrowserClass(UnshownControl& control) : control_(control) {
    registered_ = CoRegisterClassObject(CLSID_WebBrowser, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_);
  }
  ~BrowserClass() { CoRevokeClassObject(cookie_); }
  BrowserClass(const BrowserClass&) = delete;
  BrowserClass& operator=(const BrowserClass&) = delete;

  [[nodiscard]] bool isRegistered() const { return SUCCEEDED(registered_); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *result = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }  // it lives as long as the test says
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** result) override {
    return control_.QueryInterface(id, result);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  UnshownControl& control_;
  HRESULT registered_;
  DWORD cookie_ = 0;
};

TEST(PageControlTest, TakesApartWhatIsThereWhenAStepFails) {
  const OleThread ole;
  UnshownControl control;
  const BrowserClass browserClass(control);
  ASSERT_TRUE(browserClass.isRegistered());
  const WindowHandle window(
      CreateWindowExW(0, WC_STATICW, L"", WS_POPUP, 0, 0, 90, 90, nullptr, nullptr, nullptr, nullptr));
  EXPECT_THROW(PageControl(window.get(), nullptr), Failure);
  EXPECT_TRUE(control.isClosed());
  EXPECT_FALSE(control.hasSite());
  EXPECT_EQ(control.references(), 1U);
}

}  // namespace
}  // namespace windows
