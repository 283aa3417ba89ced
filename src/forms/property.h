#pragma once

#include <string_view>

namespace forms {

// The properties whose writes a host must show.
enum class Property {
  Visible,
  Enabled,
  Left,
  Top,
  Width,
  Height,
  Caption,
  Text,
  ListIndex,
  Value,
  Tab,
  SelectedItem,
};

[[nodiscard]] std::string_view name(Property property);

}  // namespace forms
