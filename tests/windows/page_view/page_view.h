#pragma once

#include <oleidl.h>

#include <string>

#include "hosts/windows/com/com_ptr.h"

namespace pageview {

// Stands for the system's browser control: goes to a page by the path of its file, names it by its title, else by its
// file name (or as a test says), and shows that name as a text.
class PageView final : public IOleObject, public IOleInPlaceObject, public IDispatch {
 public:
  [[nodiscard]] static windows::ComPtr<IUnknown> create();

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;

  // --- IOleObject ---
  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** /*site*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR /*application*/, LPCOLESTR /*object*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Close(DWORD /*save*/) override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** /*moniker*/) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* /*data*/, BOOL /*creation*/, DWORD /*reserved*/) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD /*reserved*/, IDataObject** /*data*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent,
                                   LPCRECT place) override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** /*verbs*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD /*form*/, LPOLESTR* /*type*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD /*aspect*/, SIZEL* /*size*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD /*aspect*/, SIZEL* /*size*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* /*sink*/, DWORD* /*connection*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD /*connection*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** /*connections*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD /*aspect*/, DWORD* /*status*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* /*palette*/) override { return E_NOTIMPL; }

  // --- IOleInPlaceObject ---
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE UIDeactivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return E_NOTIMPL; }

  // --- IDispatch: "Navigate" and "LocationName" ---
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/) override {
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

 private:
  PageView() = default;
  ~PageView();

  [[nodiscard]] std::wstring name() const;
  void show();

  ULONG references_ = 1;
  windows::ComPtr<IOleClientSite> site_;
  HWND window_ = nullptr;
  std::wstring page_;
};

// The title in a page's text; empty where there is none.
[[nodiscard]] std::string titleIn(const std::string& page);

}  // namespace pageview
