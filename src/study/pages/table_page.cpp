#include "study/pages/table_page.h"

#include "study/methods/figure.h"
#include "study/pages/html.h"

namespace study::pages {

namespace {

constexpr std::string_view kStyle = R"(body { margin: 18px; color: #1f2933; background: #ffffff;
  font-family: "Segoe UI", "Noto Sans", "DejaVu Sans", Verdana, sans-serif; font-size: 13px; line-height: 1.3; }
h1 { margin: 0 0 2px 0; color: #1f3a5f; font-size: 20px; font-weight: 600; line-height: 1.2; }
p { margin: 3px 0; }
p.subject { margin: 0 0 14px 0; color: #52606d; font-size: 15px; }
p.note { max-width: 60em; color: #52606d; font-size: 12px; }
p.source { margin-top: 8px; color: #52606d; font-size: 12px; }
table { margin: 0 0 20px 0; border-collapse: collapse; font-variant-numeric: tabular-nums; }
caption { padding: 0 0 5px 0; color: #1f3a5f; font-weight: 600; text-align: left; }
th, td { padding: 3px 8px; border-bottom: 1px solid #d9e2ec; text-align: right; vertical-align: bottom; }
td { white-space: nowrap; }
th { font-weight: 600; }
thead th { color: #1f3a5f; background-color: #e8eef5; border-bottom: 1px solid #9fb3c8; }
th.g { border-left: 1px solid #bccbdb; text-align: center; }
th.c { min-width: 4.6em; max-width: 8em; }
th.r { min-width: 13em; max-width: 24em; text-align: left; }
tbody th.r { font-weight: 400; }
tr.t th.r, tr.t td { background-color: #f3f6f9; border-top: 1px solid #9fb3c8; font-weight: 600; }
tr.i th.r { padding-left: 22px; }
div.places th.r { white-space: nowrap; }
tr.s th.r { padding-top: 10px; color: #1f3a5f; font-weight: 600; }
td.u { color: #7a4f01; }
td.m { color: #7b8794; }
div.dense table { font-size: 12px; }
div.dense th, div.dense td { padding: 3px 5px; }
div.dense th.c { min-width: 2.4em; white-space: nowrap; }
@media print {
  body { margin: 0; font-size: 9pt; }
  h1 { font-size: 13pt; }
  p.subject { margin-bottom: 6pt; font-size: 10pt; }
  p.note, p.source { max-width: none; margin: 1pt 0; font-size: 7pt; }
  table { margin: 0 0 8pt 0; }
  table + table { break-before: page; page-break-before: always; }
  thead { display: table-header-group; }
  tr { break-inside: avoid; page-break-inside: avoid; }
  thead th, tr.t th.r, tr.t td { -webkit-print-color-adjust: exact; print-color-adjust: exact; }
  th, td { padding: 1.5pt 4pt; }
  tr.i th.r { padding-left: 12pt; }
  div.places th.r { white-space: normal; }
  div.dense table { font-size: 6.6pt; }
  div.dense th, div.dense td { padding: 1pt 2pt; }
  div.dense th.c { min-width: 2.2em; }
  div.dense th.r { min-width: 12em; max-width: 36em; }
}
)";

constexpr std::string_view kPortraitPaper = "@page { size: A4 portrait; margin: 12mm; }\n";
constexpr std::string_view kLandscapePaper = "@page { size: A4 landscape; margin: 10mm; }\n";

std::string joined(const std::vector<std::string>& texts, std::string_view between) {
  std::string all;
  for (const std::string& text : texts) {
    if (!all.empty()) all += between;
    all += text;
  }
  return all;
}

std::string note(std::string_view text) { return element("p", text, "class=\"note\"") + "\n"; }

std::string hiddenNote(const Study& study) {
  return std::string(kHiddenMark) + " Cifra que no se publica para proteger a las personas: corresponde a menos de " +
         std::to_string(study.suppressBelow) + " defunciones, o permitiría deducir otra que no se publica.";
}

std::string notes(const TablePage& page, const Study& study) {
  std::set<Mark> marks;
  for (const Sheet& sheet : page.sheets) marks.merge(marksOf(sheet));
  std::string html;
  if (marks.contains(Mark::unstable)) html += note(kUnstableMark + (" " + page.unstableNote));
  if (marks.contains(Mark::missing)) html += note(kMissingMark + (" " + page.missingNote));
  if (marks.contains(Mark::hidden)) html += note(hiddenNote(study));
  for (const std::string& text : page.notes) html += note(text);
  return html;
}

std::string_view layoutTag(PageWidth width) {
  switch (width) {
    case PageWidth::portrait:
      return "<div class=\"places\">";
    case PageWidth::dense:
      return "<div class=\"dense\">";
    case PageWidth::landscape:
      break;
  }
  return "<div>";
}

bool areConsecutive(const std::vector<int>& years) {
  return static_cast<std::size_t>(years.back() - years.front()) + 1 == years.size();
}

}  // namespace

std::string studyName(const Study& study) {
  std::string name = "Mortalidad en " + std::string(kRegion);
  const std::vector<int>& years = study.years;
  if (years.empty()) return name;
  if (years.size() > 2 && areConsecutive(years)) {
    return name + " " + std::to_string(years.front()) + "-" + std::to_string(years.back());
  }
  std::vector<std::string> texts;
  for (const int year : years) texts.push_back(std::to_string(year));
  return name + " " + joined(texts, ", ");
}

std::string sourceOf(const Study& study) { return study.texts.source.empty() ? studyName(study) : study.texts.source; }

std::string html(const TablePage& table, const Study& study) {
  std::string body = std::string(layoutTag(table.width)) + "\n";
  body += element("h1", table.name) + "\n";
  body += element("p", joined(table.subjects, " · "), "class=\"subject\"") + "\n";
  for (const Sheet& sheet : table.sheets) body += html(sheet);
  body += notes(table, study);
  body += element("p", "Fuente: " + sourceOf(study), "class=\"source\"") + "\n</div>\n";
  const std::string style =
      std::string(kStyle) + std::string(table.width == PageWidth::portrait ? kPortraitPaper : kLandscapePaper);
  return page(fileNameTitle(table.name + ", " + joined(table.subjects, ", ")), style, body);
}

}  // namespace study::pages
