#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "hosts/desktop/pages/reading/markup.h"
#include "hosts/desktop/pages/reading/page_style.h"

namespace desktop::pages {

// The styles of a page's cells and paragraphs: it has many of them and few styles, and the toolkit is quicker when each
// is said once.
class StyleClasses {
 public:
  explicit StyleClasses(double zoom) : zoom_(zoom) {}

  // The attributes of a cell that give it this style; a blank before each.
  [[nodiscard]] const QString& cellAttributes(const PageStyle& style, Around around);
  // The attribute of a paragraph that gives it this style; a blank before it.
  [[nodiscard]] QString paragraphAttribute(const QString& css) { return attribute(paragraphs_, css); }
  // The style sheet that the attributes rely on.
  [[nodiscard]] const QString& sheet() const { return sheet_; }

 private:
  // The classes of one element, by what they say.
  struct Classes {
    QLatin1String element;
    QHash<QString, QString> names;
  };
  // A cell's style that was asked for lately.
  struct Known {
    PageStyle style;
    Around around;
    QString attributes;
  };

  [[nodiscard]] QString attribute(Classes& classes, const QString& css);
  [[nodiscard]] QString writtenCell(const PageStyle& style, Around around);

  double zoom_;
  Classes cells_{QLatin1String("td"), {}};
  Classes paragraphs_{QLatin1String("p"), {}};
  QString sheet_;
  std::vector<Known> known_;
  std::size_t oldest_ = 0;
};

}  // namespace desktop::pages
