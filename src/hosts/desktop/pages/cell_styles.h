#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "hosts/desktop/pages/markup.h"
#include "hosts/desktop/pages/page_style.h"

namespace desktop::pages {

// The styles of a page's cells: a table has many cells and few styles, and the toolkit is quicker when each is said
// once.
class CellStyles {
 public:
  explicit CellStyles(double zoom) : zoom_(zoom) {}

  // The attributes of a cell that give it this style; a blank before each.
  [[nodiscard]] const QString& attributesFor(const PageStyle& style, Around around);
  // The style sheet that the attributes rely on.
  [[nodiscard]] const QString& sheet() const { return sheet_; }

 private:
  // A style that was asked for lately.
  struct Known {
    PageStyle style;
    Around around;
    QString attributes;
  };

  [[nodiscard]] QString attributes(const PageStyle& style, Around around);

  double zoom_;
  std::vector<Known> known_;
  std::size_t oldest_ = 0;
  QHash<QString, QString> classes_;
  QString sheet_;
};

}  // namespace desktop::pages
