#include "study/pages/html.h"

namespace study::pages {

namespace {

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

std::string reference(char c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return isControl(c) && c != '\t' && c != '\n' ? " " : std::string(1, c);
  }
}

}  // namespace

std::string escaped(std::string_view text) {
  std::string html;
  html.reserve(text.size());
  for (const char c : text) html += reference(c);
  return html;
}

std::string element(std::string_view name, std::string_view text, std::string_view attributes) {
  std::string html = "<";
  html += name;
  if (!attributes.empty()) html.append(" ").append(attributes);
  html.append(">").append(escaped(text)).append("</").append(name).append(">");
  return html;
}

std::string page(std::string_view title, std::string_view style, std::string_view body) {
  std::string html =
      "<!DOCTYPE html>\n"
      "<html lang=\"es\">\n"
      "<head>\n"
      "<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n";
  html += element("title", title);
  html.append("\n<style>\n").append(style).append("</style>\n</head>\n<body>\n");
  html.append(body).append("</body>\n</html>\n");
  return html;
}

std::string fileNameTitle(std::string_view title) {
  constexpr std::string_view kForbidden = "\\/:*?\"<>|";
  std::string name;
  for (const char c : title) name += isControl(c) || kForbidden.find(c) != std::string_view::npos ? '-' : c;
  const std::size_t first = name.find_first_not_of(" .");
  if (first == std::string::npos) return {};
  return name.substr(first, name.find_last_not_of(" .") - first + 1);
}

}  // namespace study::pages
