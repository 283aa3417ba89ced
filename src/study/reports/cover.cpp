#include <algorithm>

#include "study/pages/table_page.h"
#include "study/reports/map_picture.h"
#include "study/reports/sections.h"
#include "text/spanish_number.h"

namespace study::reports {

namespace {

constexpr double kBandHeight = 330;
constexpr int kPaleText = 0xC9DCE8;
constexpr int kAccent = 0x78B8A8;

std::string titleOf(const Study& study) {
  const std::string& title = study.texts.presentation.title;
  return title.empty() ? "Mortalidad en " + std::string(kRegion) : title;
}

std::string counted(std::size_t number, const std::string& one, const std::string& many) {
  return text::spanishNumber(static_cast<double>(number), 0) + " " + (number == 1 ? one : many);
}

// In the largest type that needs at most three lines.
void paintTitle(Page& page, const std::string& title) {
  constexpr std::size_t kMostLines = 3;
  TextStyle style{32, true, kPaper};
  std::vector<std::string> lines = wrapped(title, kContentWidth, style);
  for (; lines.size() > kMostLines && style.size > 12; lines = wrapped(title, kContentWidth, style)) style.size -= 2;
  if (lines.size() > kMostLines) {
    std::string rest;
    for (std::size_t i = kMostLines - 1; i < lines.size(); ++i) rest += (rest.empty() ? "" : " ") + lines[i];
    lines.resize(kMostLines - 1);
    lines.push_back(shortened(rest, kContentWidth, style));
  }
  double baseline = 92;
  for (const std::string& line : lines) {
    page.text({kLeft, baseline}, line, style);
    baseline += lineHeight(style) * 0.92;
  }
}

}  // namespace

void addCover(Flow& flow, const ReportData& data) {
  const Study& study = data.study();
  Page& page = flow.plainPage();
  page.box({0, 0, kPageWidth, kBandHeight}, kTitle);
  page.box({0, kBandHeight, kPageWidth, 6}, kAccent);
  paintTitle(page, titleOf(study));
  page.text({kLeft, kBandHeight - 90}, "Informe anual de mortalidad", {14, false, kPaleText});
  page.text({kLeft, kBandHeight - 28}, data.year(), {58, true, kPaper});

  MapPicture land;
  land.study = &study;
  land.values.assign(study.provinces.size(), 1.0);
  land.limits = {0, 1, 2, 3};
  land.hasScale = false;
  paintMap(page, {kLeft + 30, kBandHeight + 40, kContentWidth - 60, 340}, land);

  const std::string extentOfStudy = std::string(kRegion) + " · " +
                                    counted(study.provinces.size(), "provincia", "provincias") + " · " +
                                    counted(study.zones.size(), "zona básica de salud", "zonas básicas de salud");
  constexpr TextStyle kSmall{9, false, kFaintText};
  page.text({kLeft, kBottom - 4}, extentOfStudy, kSmall);
  double baseline = kBottom + 10;
  std::vector<std::string> lines = wrapped("Fuente: " + pages::sourceOf(study), kContentWidth, kSmall);
  lines.resize(std::min<std::size_t>(lines.size(), 2));
  for (const std::string& line : lines) {
    page.text({kLeft, baseline}, line, kSmall);
    baseline += lineHeight(kSmall);
  }
}

double addPresentation(Flow& flow, const ReportData& data, std::size_t sections) {
  const std::string& text = data.study().texts.presentation.text;
  flow.newPage();
  flow.subsection("Presentación", 60);
  const std::string own = "Este informe resume la mortalidad de " + std::string(kRegion) + " en " + data.year() +
                          " por sexo, grupo de edad y causa de muerte, para el conjunto de la región, sus provincias "
                          "y sus zonas básicas de salud.";
  flow.paragraphs(text.empty() ? own : text);
  flow.subsection("Contenido", Flow::contentsHeight(sections));
  const double top = flow.y();
  flow.space(Flow::contentsHeight(sections));
  return top;
}

}  // namespace study::reports
