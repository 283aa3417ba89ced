#include "hosts/windows/com/ole_variant.h"

#include <array>
#include <charconv>
#include <new>

#include "hosts/windows/win32/wide_text.h"
#include "text/failure.h"

namespace windows {
namespace {

// Numbers are written with "." whatever the user's own signs are.
constexpr LCID kPlain = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);

void become(VARIANT& target, const VARIANT& source, VARTYPE type) {
  if (FAILED(VariantChangeTypeEx(&target, const_cast<VARIANT*>(&source), kPlain, 0, type)))
    throw failures::typeMismatch();
}

// The double that reads as the float does.
double shortest(float value) {
  std::array<char, 32> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  double result = 0;
  std::from_chars(digits.data(), written.ptr, result);
  return result;
}

}  // namespace

OleVariant::OleVariant(std::string_view utf8) {
  VariantInit(&value_);
  const std::wstring text = wide(utf8);
  value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  if (value_.bstrVal == nullptr) throw std::bad_alloc();
  value_.vt = VT_BSTR;
}

platform::Variant OleVariant::value() const {
  OleVariant plain;
  if (FAILED(VariantCopyInd(&plain.get(), const_cast<VARIANT*>(&value_)))) throw failures::typeMismatch();
  switch (plain.get().vt) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_BOOL:
      return plain.get().boolVal == VARIANT_FALSE ? "F" : "T";
    case VT_R4:
      return shortest(plain.get().fltVal);
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DECIMAL: {
      OleVariant number;
      become(number.get(), plain.get(), VT_R8);
      return number.get().dblVal;
    }
    default:
      return textOf(plain.get());
  }
}

std::string textOf(const VARIANT& value) {
  OleVariant text;
  become(text.get(), value, VT_BSTR);
  const BSTR letters = text.get().bstrVal;
  return utf8({letters == nullptr ? L"" : letters, SysStringLen(letters)});
}

}  // namespace windows
