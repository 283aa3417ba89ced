#include "hosts/windows/drawing/artwork.h"

#include <algorithm>
#include <map>
#include <memory>

#include "hosts/windows/com/com_ptr.h"
#include "hosts/windows/win32/wide_text.h"
#include "text/utf8.h"

namespace windows::artwork {
namespace {

using Pictures = std::map<std::string, std::unique_ptr<Gdiplus::Bitmap>>;

Pictures& pictures() {
  static Pictures all;
  return all;
}

// What the picture is called among the executable's resources.
std::wstring resourceName(const std::string& name) {
  std::string result = text::upper(name);
  std::ranges::replace(result, '-', '_');
  return wide(result);
}

std::unique_ptr<Gdiplus::Bitmap> read(const std::string& name) {
  const HRSRC found = FindResourceW(nullptr, resourceName(name).c_str(), RT_RCDATA);
  if (found == nullptr) return nullptr;
  const DWORD size = SizeofResource(nullptr, found);
  const void* bytes = LockResource(LoadResource(nullptr, found));
  if (bytes == nullptr) return nullptr;
  ComPtr<IStream> stream;
  if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.put()))) return nullptr;
  if (FAILED(stream->Write(bytes, size, nullptr)) || FAILED(stream->Seek({}, STREAM_SEEK_SET, nullptr))) return nullptr;
  auto picture = std::make_unique<Gdiplus::Bitmap>(stream.get());
  return picture->GetLastStatus() == Gdiplus::Ok ? std::move(picture) : nullptr;
}

}  // namespace

Gdiplus::Bitmap* picture(const std::string& name) {
  const auto known = pictures().find(name);
  if (known != pictures().end()) return known->second.get();
  return pictures().emplace(name, read(name)).first->second.get();
}

void forget() { pictures().clear(); }

}  // namespace windows::artwork
