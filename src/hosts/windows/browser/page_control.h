#pragma once

#include <string>

#include "hosts/windows/browser/page_site.h"
#include "hosts/windows/com/late_bound.h"

namespace windows {

// The system's web browser control in a window of ours. Of the control's class this asks for IOleObject, an IDispatch
// with "Navigate" and "LocationName", and, where it has them, IOleInPlaceObject, IOleInPlaceActiveObject and events
// (DWebBrowserEvents2).
class PageControl {
 public:
  // Makes the control and activates it in the window, which outlives it. Throws Failure where there is no such control.
  PageControl(HWND window, PageSite::Gate gate);
  ~PageControl();
  PageControl(const PageControl&) = delete;
  PageControl& operator=(const PageControl&) = delete;

  // Fills the window anew.
  void fit();
  // Shows the page of a file or address. Throws Failure.
  void navigate(const std::string& address);
  // The name of the page shown: its title, else its file name; empty where the control knows none.
  [[nodiscard]] std::string locationName();
  // Lets the control hear of a key first; true when nobody else is to.
  [[nodiscard]] bool translate(const MSG& message) { return site_->translate(message); }

 private:
  PageControl(HWND window, ComPtr<PageSite> site);
  void listen();
  void stopListening();

  HWND window_;
  ComPtr<PageSite> site_;
  ComPtr<IOleObject> object_;
  LateBound browser_{ComPtr<IDispatch>()};
  ComPtr<IConnectionPoint> events_;
  DWORD listening_ = 0;
};

}  // namespace windows
