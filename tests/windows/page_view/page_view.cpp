#include "page_view/page_view.h"

#include <exdisp.h>

#include <array>
#include <filesystem>

#include "com/module.h"
#include "hosts/windows/com/ole_variant.h"
#include "hosts/windows/win32/wide_text.h"
#include "page_view/settings.h"
#include "text/file_text.h"
#include "text/utf8.h"

namespace pageview {
namespace {

constexpr std::array kMembers{L"Navigate", L"LocationName"};
constexpr DISPID kNavigate = 1;
constexpr DISPID kLocationName = 2;

}  // namespace

std::string titleIn(const std::string& page) {
  constexpr std::string_view kBegin = "<title>";
  const std::string lower = text::lower(page);
  const std::size_t begin = lower.find(kBegin);
  const std::size_t end = lower.find("</title>", begin);
  if (begin == std::string::npos || end == std::string::npos) return "";
  const std::size_t from = begin + kBegin.size();
  return text::trim(page.substr(from, end - from));
}

windows::ComPtr<IUnknown> PageView::create() {
  const auto view = windows::ComPtr<PageView>::owning(new PageView);
  return windows::ComPtr<IUnknown>(static_cast<IOleObject*>(view.get()));
}

PageView::~PageView() {
  if (window_ != nullptr) DestroyWindow(window_);
}

HRESULT PageView::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (id == IID_IUnknown || id == IID_IOleObject) {
    *result = static_cast<IOleObject*>(this);
  } else if (id == IID_IOleInPlaceObject || id == IID_IOleWindow) {
    *result = static_cast<IOleInPlaceObject*>(this);
  } else if (id == IID_IDispatch) {
    *result = static_cast<IDispatch*>(this);
  }
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG PageView::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT PageView::SetClientSite(IOleClientSite* site) {
  site_ = windows::ComPtr<IOleClientSite>(site);
  return S_OK;
}

HRESULT PageView::Close(DWORD) {
  if (window_ != nullptr) DestroyWindow(window_);
  window_ = nullptr;
  return S_OK;
}

HRESULT PageView::DoVerb(LONG, LPMSG, IOleClientSite*, LONG, HWND parent, LPCRECT place) {
  if (window_ != nullptr) return S_OK;
  window_ = CreateWindowExW(0, WC_STATICW, name().c_str(), WS_CHILD | WS_VISIBLE | SS_CENTER | SS_NOPREFIX, 0, 0, 0, 0,
                            parent, nullptr, comserver::thisModule(), nullptr);
  return SetObjectRects(place, place);
}

HRESULT PageView::GetUserClassID(CLSID* id) {
  *id = CLSID_WebBrowser;
  return S_OK;
}

HRESULT PageView::GetWindow(HWND* window) {
  *window = window_;
  return window_ == nullptr ? E_FAIL : S_OK;
}

HRESULT PageView::SetObjectRects(LPCRECT place, LPCRECT) {
  if (window_ == nullptr || place == nullptr) return E_FAIL;
  SetWindowPos(window_, nullptr, place->left, place->top, place->right - place->left, place->bottom - place->top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  return S_OK;
}

HRESULT PageView::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

HRESULT PageView::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
  for (std::size_t i = 0; i < kMembers.size(); ++i) {
    if (lstrcmpiW(names[0], kMembers[i]) != 0) continue;
    ids[0] = static_cast<DISPID>(i) + 1;
    return S_OK;
  }
  return DISP_E_UNKNOWNNAME;
}

HRESULT PageView::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*, UINT*) {
  if (id == kNavigate && parameters->cArgs >= 1) {
    page_ = windows::wide(windows::textOf(parameters->rgvarg[parameters->cArgs - 1]));
    show();
    return S_OK;
  }
  if (id != kLocationName || result == nullptr) return DISP_E_MEMBERNOTFOUND;
  VariantInit(result);
  result->vt = VT_BSTR;
  result->bstrVal = SysAllocString(name().c_str());
  return S_OK;
}

std::wstring PageView::name() const {
  if (std::wstring told = locationName(); !told.empty()) return told;
  const std::filesystem::path file(page_);
  const std::string title = titleIn(text::wholeFile(file).value_or(""));
  return title.empty() ? file.filename().wstring() : windows::wide(title);
}

void PageView::show() {
  if (window_ != nullptr) SetWindowTextW(window_, (L"\n" + name() + L"\n\n" + page_).c_str());
}

}  // namespace pageview
