#include "hosts/windows/windows_program.h"

#include "hosts/windows/message_loop.h"
#include "hosts/windows/program_name.h"
#include "hosts/windows/win32/wide_text.h"

namespace windows {

WindowsProgram::WindowsProgram(const std::string& applicationFolder) : ports_(host_, calls_, applicationFolder) {
  calls_.ended = [] { PostQuitMessage(0); };
  calls_.failed = [this](const std::string& description) {
    ports_.ports().messages.show(description, platform::kCritical, kProgramName);
  };
  atlas_ = std::make_unique<atlas::Atlas>(ports_.ports(), host_);
}

// The atlas lets go of the engine, whose map lies in one of its windows, and waits little for one that hangs; the
// windows go before the forms that they show.
WindowsProgram::~WindowsProgram() {
  calls_.ended = nullptr;
  host_.leaveUnattended();
  atlas_->motormapa.reset();
  host_.closeAll();
  atlas_.reset();
}

void WindowsProgram::run() {
  calls_.run([this] { atlas_->Main(); });
  runMessages(host_);
}

std::string executableFolder() {
  constexpr std::size_t kLongestPath = 32768;
  std::wstring path(kLongestPath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return utf8(path.substr(0, path.find_last_of(L'\\')));
}

}  // namespace windows
