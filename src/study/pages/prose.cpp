#include "study/pages/prose.h"

#include <algorithm>

#include "study/pages/html.h"
#include "study/pages/table_page.h"
#include "text/utf8.h"

namespace study::pages {

namespace {

constexpr std::string_view kStyle = R"(body { margin: 0 auto; padding: 32px 24px 40px 24px; max-width: 46em;
  color: #1f2933; background: #ffffff; font-size: 16px; line-height: 1.55;
  font-family: "Segoe UI", "Noto Sans", "DejaVu Sans", Verdana, sans-serif; }
p.kicker { margin: 0; color: #52606d; font-size: 14px; }
h1 { margin: 2px 0 20px 0; padding-bottom: 12px; border-bottom: 2px solid #1f3a5f; color: #1f3a5f; font-size: 28px;
  font-weight: 600; line-height: 1.25; }
h2 { margin: 30px 0 6px 0; color: #1f3a5f; font-size: 19px; font-weight: 600; line-height: 1.3; }
p { margin: 0 0 12px 0; }
p.formula { margin: 0 0 12px 0; padding: 8px 16px; border-left: 3px solid #9fb3c8; background-color: #f3f6f9; }
ul { margin: 0 0 12px 0; padding-left: 22px; }
li { margin: 0 0 4px 0; }
dl { margin: 0 0 12px 0; }
dt { margin-top: 10px; font-weight: 600; }
dd { margin: 0 0 0 22px; }
a { color: #1d5fa8; }
table { margin: 12px 0 18px 0; border-collapse: collapse; font-size: 14px; font-variant-numeric: tabular-nums; }
caption { padding: 0 0 5px 0; color: #1f3a5f; font-weight: 600; text-align: left;
  white-space: nowrap; }
th, td { padding: 3px 9px; border-bottom: 1px solid #d9e2ec; text-align: right; vertical-align: bottom; }
td { white-space: nowrap; }
th { font-weight: 600; }
th.r { text-align: left; }
th.g { border-left: 1px solid #bccbdb; text-align: center; }
thead th { color: #1f3a5f; background-color: #e8eef5; border-bottom: 1px solid #9fb3c8; }
tbody th.r { font-weight: 400; }
tr.t th.r, tr.t td { background-color: #f3f6f9; border-top: 1px solid #9fb3c8; font-weight: 600; }
td.m { color: #7b8794; }
p.source { margin-top: 32px; padding-top: 10px; border-top: 1px solid #d9e2ec; color: #52606d; font-size: 13px; }
@page { size: A4 portrait; margin: 18mm; }
@media print {
  body { padding: 0; max-width: none; font-size: 10.5pt; }
  h1 { font-size: 18pt; }
  h2 { font-size: 13pt; break-after: avoid; page-break-after: avoid; }
  table { font-size: 9pt; }
  p.formula, tr, dd { break-inside: avoid; page-break-inside: avoid; }
  thead th, tr.t th.r, tr.t td, p.formula { -webkit-print-color-adjust: exact; print-color-adjust: exact; }
}
)";

}  // namespace

Prose::Prose(std::string_view kicker, std::string_view title) : title_(title) {
  body_ = element("p", kicker, "class=\"kicker\"") + "\n" + element("h1", title) + "\n";
}

void Prose::heading(std::string_view text, std::string_view id) {
  const std::string attributes = id.empty() ? std::string() : "id=\"" + escaped(id) + "\"";
  body_ += element("h2", text, attributes) + "\n";
}

void Prose::paragraph(std::string_view text) { body_ += element("p", text) + "\n"; }

void Prose::paragraphs(std::string_view text) {
  std::string open;
  const auto close = [&] {
    if (!open.empty()) paragraph(open);
    open.clear();
  };
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string line = text::trim(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty()) {
      close();
    } else {
      open += open.empty() ? line : " " + line;
    }
  }
  close();
}

void Prose::formula(std::string_view text) { body_ += element("p", text, "class=\"formula\"") + "\n"; }

void Prose::list(const std::vector<std::string>& items) {
  body_ += "<ul>\n";
  for (const std::string& item : items) body_ += element("li", item) + "\n";
  body_ += "</ul>\n";
}

void Prose::definitions(const std::vector<std::pair<std::string, std::string>>& terms) {
  body_ += "<dl>\n";
  for (const auto& [term, meaning] : terms) body_ += element("dt", term) + "\n" + element("dd", meaning) + "\n";
  body_ += "</dl>\n";
}

void Prose::links(const std::vector<Anchor>& places) {
  body_ += "<ul>\n";
  for (const Anchor& place : places) {
    body_ += "<li>" + element("a", place.text, "href=\"#" + escaped(place.id) + "\"") + "</li>\n";
  }
  body_ += "</ul>\n";
}

void Prose::table(const Sheet& sheet) { body_ += html(sheet); }

std::string Prose::page(const Study& study) const {
  const std::string foot = element("p", "Fuente: " + sourceOf(study), "class=\"source\"") + "\n";
  return pages::page(title_, kStyle, body_ + foot);
}

Prose opened(const Study& study, const DocumentText& text, std::string_view title, std::string_view paragraphs) {
  Prose prose(studyName(study), text.title.empty() ? title : std::string_view(text.title));
  prose.paragraphs(text.text.empty() ? paragraphs : std::string_view(text.text));
  return prose;
}

}  // namespace study::pages
