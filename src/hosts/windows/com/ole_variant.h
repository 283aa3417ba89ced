#pragma once

#include <oaidl.h>

#include <string_view>

#include "hosts/windows/win32/windows_h.h"
#include "platform/variant.h"

namespace windows {

// A VARIANT that frees what it holds.
class OleVariant {
 public:
  OleVariant() { VariantInit(&value_); }
  // A text.
  explicit OleVariant(std::string_view utf8);
  ~OleVariant() { VariantClear(&value_); }
  OleVariant(const OleVariant&) = delete;
  OleVariant& operator=(const OleVariant&) = delete;

  [[nodiscard]] VARIANT& get() { return value_; }
  [[nodiscard]] const VARIANT& get() const { return value_; }

  // What it says to the program: nothing for empty and null, "T" or "F" for a logical value, a number for what is one
  // (with the shortest decimals of a single-precision one), else the text that it can be turned into. Fails with 13
  // where it is none of these.
  [[nodiscard]] platform::Variant value() const;

 private:
  VARIANT value_;
};

// The text of any VARIANT that is or can become one, also by reference; fails with 13.
[[nodiscard]] std::string textOf(const VARIANT& value);

}  // namespace windows
