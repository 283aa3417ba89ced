#include "hosts/windows/browser/page_site.h"

#include <exdisp.h>
#include <exdispid.h>

#include "hosts/windows/com/ole_variant.h"
#include "hosts/windows/win32/wide_text.h"

namespace windows {
namespace {

// The arguments of an event arrive last first.
VARIANT& argument(const DISPPARAMS& parameters, UINT fromLast) { return parameters.rgvarg[fromLast]; }

void cancel(VARIANT& flag) {
  if (flag.vt == (VT_BOOL | VT_BYREF) && flag.pboolVal != nullptr) *flag.pboolVal = VARIANT_TRUE;
}

}  // namespace

ComPtr<PageSite> PageSite::create(HWND window, Gate gate) {
  return ComPtr<PageSite>::owning(new PageSite(window, std::move(gate)));
}

void PageSite::leave() {
  active_.reset();
  gate_ = nullptr;
  window_ = nullptr;
}

HRESULT PageSite::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (id == IID_IUnknown || id == IID_IOleClientSite) {
    *result = static_cast<IOleClientSite*>(this);
  } else if (id == IID_IOleInPlaceSite || id == IID_IOleWindow) {
    *result = static_cast<IOleInPlaceSite*>(this);
  } else if (id == IID_IOleInPlaceFrame || id == IID_IOleInPlaceUIWindow) {
    *result = static_cast<IOleInPlaceFrame*>(this);
  } else if (id == IID_IDispatch || id == DIID_DWebBrowserEvents2) {
    *result = static_cast<IDispatch*>(this);
  }
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG PageSite::AddRef() { return ++references_; }

ULONG PageSite::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT PageSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker != nullptr) *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT PageSite::GetContainer(IOleContainer** container) {
  if (container != nullptr) *container = nullptr;
  return E_NOINTERFACE;
}

HRESULT PageSite::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = window_;
  return window_ == nullptr ? E_FAIL : S_OK;
}

HRESULT PageSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                   LPRECT clip, LPOLEINPLACEFRAMEINFO info) {
  if (frame == nullptr || document == nullptr || position == nullptr || clip == nullptr || info == nullptr) {
    return E_POINTER;
  }
  *frame = this;
  AddRef();
  *document = nullptr;
  GetClientRect(window_, position);
  *clip = *position;
  info->fMDIApp = FALSE;
  info->hwndFrame = GetAncestor(window_, GA_ROOT);
  info->haccel = nullptr;
  info->cAccelEntries = 0;
  return S_OK;
}

HRESULT PageSite::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) {
  active_ = ComPtr<IOleInPlaceActiveObject>(object);
  return S_OK;
}

HRESULT PageSite::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT PageSite::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

// Where a page wants to go, and windows of its own that it wants to open. No exception leaves it.
HRESULT PageSite::Invoke(DISPID event, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
  constexpr UINT kAddress = 5;  // of BeforeNavigate2, from the last argument
  constexpr UINT kArguments = 7;
  if ((flags & DISPATCH_PROPERTYGET) != 0) return DISP_E_MEMBERNOTFOUND;  // the control's own ways are kept
  if (parameters == nullptr) return E_INVALIDARG;
  if (event == DISPID_NEWWINDOW2 || event == DISPID_NEWWINDOW3) {
    for (UINT i = 0; i < parameters->cArgs; ++i) cancel(argument(*parameters, i));
    return S_OK;
  }
  if (event != DISPID_BEFORENAVIGATE2 || parameters->cArgs < kArguments) return S_OK;
  try {
    const std::wstring address = wide(textOf(argument(*parameters, kAddress)));
    if (gate_ && !gate_(address)) cancel(argument(*parameters, 0));
  } catch (...) {
    cancel(argument(*parameters, 0));
  }
  return S_OK;
}

bool PageSite::translate(const MSG& message) {
  const ComPtr<IOleInPlaceActiveObject> active = active_;
  if (!active) return false;
  MSG copy = message;
  return active->TranslateAccelerator(&copy) == S_OK;
}

}  // namespace windows
