#include "forms/property.h"

#include <array>
#include <utility>

namespace forms {

std::string_view name(Property property) {
  static constexpr std::array kNames = std::to_array<std::pair<Property, std::string_view>>({
      {Property::Visible, "Visible"},
      {Property::Enabled, "Enabled"},
      {Property::Left, "Left"},
      {Property::Top, "Top"},
      {Property::Width, "Width"},
      {Property::Height, "Height"},
      {Property::Caption, "Caption"},
      {Property::Text, "Text"},
      {Property::ListIndex, "ListIndex"},
      {Property::Value, "Value"},
      {Property::Tab, "Tab"},
      {Property::SelectedItem, "SelectedItem"},
  });
  for (const auto& [candidate, text] : kNames) {
    if (candidate == property) return text;
  }
  return "";
}

}  // namespace forms
