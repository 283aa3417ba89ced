#include "hosts/desktop/pages/reading/page_text.h"

#include <cmath>

#include "hosts/desktop/pages/reading/markup.h"
#include "hosts/desktop/pages/reading/page_charset.h"
#include "hosts/desktop/pages/reading/page_writer.h"
#include "hosts/desktop/pages/reading/shortened.h"

namespace desktop::pages {
namespace {

constexpr double kSmallestZoom = 0.25;
constexpr double kLargestZoom = 8;
constexpr qsizetype kLongestTitle = 200;
constexpr auto kCutNote =
    "<p style=\"margin:16px 0px 0px 0px\"><i>La página es demasiado grande: aquí termina la parte que se "
    "muestra.</i></p>";

PageStyle beginning() {
  PageStyle style;
  style.margin.fill({Length::Unit::pixels, 0});
  style.text.families = QStringLiteral("Verdana");
  return style;
}

Sides<int> marginsOf(const PageStyle& html, const PageStyle& body, double zoom) {
  Sides<int> margins{};
  for (const Side side : {kTop, kRight, kBottom, kLeft}) {
    const double pixels = std::max(0.0, body.margin[side].pixels()) + body.padding[side] + html.padding[side];
    margins[side] = zoomed(pixels, zoom);
  }
  return margins;
}

}  // namespace

PageText readPage(const QByteArray& bytes, double zoom, const SheetReader& sheets) {
  zoom = std::isfinite(zoom) ? std::clamp(zoom, kSmallestZoom, kLargestZoom) : 1;
  const PageTree tree = treeOf(decodedPage(bytes.first(qMin<qint64>(bytes.size(), kMostPageBytes))));
  PageStyles styles;
  for (const QString& sheet : tree.sheets) {
    if (sheets) styles.add(decodedPage(sheets(sheet)));
  }
  styles.add(tree.styles);
  const PageStyle html = styles.styleOf(*tree.html, beginning());
  const PageStyle body = styles.styleOf(tree.body(), html);

  PageText page;
  page.title = shortened(tree.title, kLongestTitle);
  page.background = body.background.isValid() ? body.background : html.background;
  page.margins = marginsOf(html, body, zoom);
  page.widest = zoomed(body.maxWidth, zoom);
  QString content;
  PageWriter writer(content, styles, zoom);
  writer.content(tree.body(), body, {});
  writer.end();
  page.isCut = tree.isCut || writer.isCut() || bytes.size() > kMostPageBytes;
  const QString sheet =
      writer.sheet().isEmpty() ? QString() : QLatin1String("<style>") + writer.sheet() + QLatin1String("</style>");
  page.html = QLatin1String("<html><head><title>") + escaped(page.title) + QLatin1String("</title>") + sheet +
              QLatin1String("</head><body>") + content;
  if (page.isCut) page.html += QString::fromUtf8(kCutNote);
  page.html += QLatin1String("</body></html>");
  return page;
}

}  // namespace desktop::pages
