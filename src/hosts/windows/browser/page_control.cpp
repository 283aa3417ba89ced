#include "hosts/windows/browser/page_control.h"

#include <exdisp.h>
#include <exdispid.h>

#include "hosts/windows/com/ole_failure.h"
#include "text/failure.h"

namespace windows {
namespace {

RECT fullRect(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  return rect;
}

void check(HRESULT result) {
  if (FAILED(result)) throw failureOf(result);
}

}  // namespace

PageControl::PageControl(HWND window, ComPtr<PageSite> site) : window_(window), site_(std::move(site)) {}

// What is there when a step fails is taken apart by the destructor.
PageControl::PageControl(HWND window, PageSite::Gate gate)
    : PageControl(window, PageSite::create(window, std::move(gate))) {
  check(CoCreateInstance(CLSID_WebBrowser, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject,
                         reinterpret_cast<void**>(object_.put())));
  check(object_->SetClientSite(static_cast<IOleClientSite*>(site_.get())));
  ComPtr<IDispatch> browser = object_.as<IDispatch>();
  if (!browser) throw failures::cannotCreateObject();
  browser_ = LateBound(std::move(browser));
  const RECT rect = fullRect(window_);
  check(
      object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, static_cast<IOleClientSite*>(site_.get()), 0, window_, &rect));
  fit();
  listen();
}

PageControl::~PageControl() {
  stopListening();
  site_->leave();
  if (!object_) return;
  object_->Close(OLECLOSE_NOSAVE);
  object_->SetClientSite(nullptr);
}

void PageControl::listen() {
  const auto container = object_.as<IConnectionPointContainer>();
  if (!container || FAILED(container->FindConnectionPoint(DIID_DWebBrowserEvents2, events_.put()))) return;
  if (FAILED(events_->Advise(static_cast<IDispatch*>(site_.get()), &listening_))) events_.reset();
}

void PageControl::stopListening() {
  if (events_) events_->Unadvise(listening_);
  events_.reset();
}

void PageControl::fit() {
  const RECT rect = fullRect(window_);
  if (const auto place = object_.as<IOleInPlaceObject>()) place->SetObjectRects(&rect, &rect);
}

void PageControl::navigate(const std::string& address) {
  OleVariant text(address);
  browser_.call(L"Navigate", text.get());
}

std::string PageControl::locationName() { return browser_.read(L"LocationName").text(); }

}  // namespace windows
