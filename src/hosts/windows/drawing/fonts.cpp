#include "hosts/windows/drawing/fonts.h"

#include <algorithm>

#include "hosts/windows/win32/wide_text.h"

namespace windows {

FontHandle makeFont(const forms::FontSpec& spec, const Scale& scale) {
  constexpr double kPointsPerInch = 72;
  LOGFONTW font{};
  font.lfHeight = -std::max(1, scale.of(spec.points * kUsualDots / kPointsPerInch));
  font.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
  font.lfQuality = CLEARTYPE_QUALITY;
  font.lfCharSet = DEFAULT_CHARSET;
  const std::wstring name = wide(spec.name).substr(0, LF_FACESIZE - 1);
  std::ranges::copy(name, font.lfFaceName);
  return FontHandle(CreateFontIndirectW(&font));
}

}  // namespace windows
