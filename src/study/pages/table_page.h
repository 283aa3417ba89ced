#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "study/model/study.h"
#include "study/pages/sheet.h"

namespace study::pages {

// How wide the widest of a page's tables is: it chooses the size of the type and the print's paper.
enum class PageWidth { portrait, landscape, dense };

// A page of statistical tables.
struct TablePage {
  std::string name;                   // of the kind of table
  std::vector<std::string> subjects;  // what the page shows of it: year, unit, list, sex
  PageWidth width = PageWidth::landscape;
  std::vector<Sheet> sheets;
  std::vector<std::string> notes;  // besides those that explain the marks used
  std::string missingNote;         // why a figure is missing
  std::string unstableNote;        // what an unstable rate rests on
};

// Where figures come from, as the study's settings say, or its name.
[[nodiscard]] std::string sourceOf(const Study& study);

// The name of the study: "Mortalidad en Veldoria 1999-2002".
[[nodiscard]] std::string studyName(const Study& study);

// The whole page. Its title is that of the page and names a file too.
[[nodiscard]] std::string html(const TablePage& page, const Study& study);

}  // namespace study::pages
