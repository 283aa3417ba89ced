#pragma once

#include <string>
#include <string_view>

// The HTML of the study's pages: text escaped, pages complete in themselves (no script, no other file).
namespace study::pages {

// As the content of an element or of a quoted attribute: & < > " ' become references; control characters other than
// tab and line feed, which no page may hold, become blanks. UTF-8 passes through.
[[nodiscard]] std::string escaped(std::string_view text);

// <name attributes>escaped text</name>. `attributes` are given as they stand, without the leading blank.
[[nodiscard]] std::string element(std::string_view name, std::string_view text, std::string_view attributes = {});

// A whole page. The title is escaped here; `style` and `body` are given as they stand.
[[nodiscard]] std::string page(std::string_view title, std::string_view style, std::string_view body);

// A page's title that is also a file name, as the program proposes it for an exported page: no \ / : * ? " < > | and no
// control character (a hyphen each), neither blank nor point at an end.
[[nodiscard]] std::string fileNameTitle(std::string_view title);

}  // namespace study::pages
