#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "study/model/area.h"

class OGRGeometry;

namespace study {

// Colours are numbers, red * 65536 + green * 256 + blue.
struct ObjectStyle {
  std::optional<int> penColour;  // none: no line
  int penWidth = 1;              // pixels, 1 to 7
  std::optional<int> fill;       // none: seen through
};

// An area with its style, made once and written with each of its unit's rows.
class TableObject {
 public:
  TableObject(const Area& area, const ObjectStyle& style);
  ~TableObject();
  TableObject(TableObject&&) noexcept;
  TableObject& operator=(TableObject&&) noexcept;

  [[nodiscard]] const OGRGeometry& geometry() const { return *geometry_; }
  // The style in the notation of the library that writes the tables.
  [[nodiscard]] const std::string& style() const { return style_; }

 private:
  std::unique_ptr<OGRGeometry> geometry_;
  std::string style_;
};

}  // namespace study
