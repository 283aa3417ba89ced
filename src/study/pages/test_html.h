#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

// For this folder's tests: reads the HTML that the pages are written in.
namespace study::pages {

// What is wrong with the nesting of a page's elements; empty where every opened element is closed in its turn, and no
// "<", ">" or bare "&" stands in a text.
inline std::string faultOf(std::string_view html) {
  constexpr std::array<std::string_view, 2> kEmpty{"meta", "col"};
  std::vector<std::string> open;
  const std::size_t style = html.find("<style>");
  const std::size_t styleEnd = html.find("</style>");
  for (std::size_t at = html.find('<'); at < html.size(); at = html.find('<', at)) {
    if (at > style && at < styleEnd) at = styleEnd;
    const std::size_t end = html.find('>', at);
    if (end == std::string_view::npos) return "a tag without end";
    std::string_view tag = html.substr(at + 1, end - at - 1);
    const std::string_view text = html.substr(end + 1, html.find('<', end) - end - 1);
    if (text.find('>') != std::string_view::npos && tag != "style") return "a bare > in " + std::string(text);
    for (std::size_t sign = text.find('&'); sign < text.size(); sign = text.find('&', sign + 1)) {
      const std::size_t semicolon = text.find(';', sign);
      if (semicolon == std::string_view::npos || semicolon - sign > 6) return "a bare & in " + std::string(text);
    }
    at = end;
    if (tag.starts_with('!')) continue;
    if (tag.starts_with('/')) {
      if (open.empty() || open.back() != tag.substr(1)) return "</" + std::string(tag.substr(1)) + "> closes nothing";
      open.pop_back();
      continue;
    }
    const std::string name(tag.substr(0, tag.find(' ')));
    if (std::find(kEmpty.begin(), kEmpty.end(), name) == kEmpty.end()) open.push_back(name);
  }
  return open.empty() ? "" : "<" + open.back() + "> is not closed";
}

// The texts of the cells of each row of a page whose header is `name`, with blanks between; one string a row.
inline std::vector<std::string> rowsOf(std::string_view html, const std::string& name) {
  std::vector<std::string> rows;
  const std::string header = ">" + name + "</th>";
  for (std::size_t at = html.find(header); at != std::string_view::npos; at = html.find(header, at + 1)) {
    const std::size_t end = html.find("</tr>", at);
    std::string cells;
    for (std::size_t cell = html.find("<td", at); cell < end; cell = html.find("<td", cell + 1)) {
      const std::size_t from = html.find('>', cell) + 1;
      if (!cells.empty()) cells += ' ';
      cells += html.substr(from, html.find('<', from) - from);
    }
    rows.push_back(cells);
  }
  return rows;
}

}  // namespace study::pages
