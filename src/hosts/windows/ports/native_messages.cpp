#include "hosts/windows/ports/native_messages.h"

#include "hosts/windows/modal_time.h"
#include "hosts/windows/win32/wide_text.h"
#include "hosts/windows/windows_host.h"

namespace windows {

platform::Button NativeMessages::show(const std::string& text, int style, const std::string& title) {
  static_assert(platform::kYesNo == MB_YESNO && platform::kCritical == MB_ICONERROR &&
                platform::kQuestion == MB_ICONQUESTION && platform::kExclamation == MB_ICONEXCLAMATION &&
                platform::kInformation == MB_ICONINFORMATION);
  if (host_.isUnattended()) return (style & platform::kYesNo) == 0 ? platform::Button::ok : platform::Button::no;
  const ModalTime modal(host_);
  const int answer = MessageBoxW(modal.owner(), wide(text).c_str(), wide(title).c_str(), static_cast<UINT>(style));
  switch (answer) {
    case IDYES:
      return platform::Button::yes;
    case IDNO:
      return platform::Button::no;
    default:
      return platform::Button::ok;
  }
}

}  // namespace windows
