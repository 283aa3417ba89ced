#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "study/model/document_texts.h"
#include "study/model/study.h"
#include "study/pages/sheet.h"

namespace study::pages {

// A place of a page that others may link to.
struct Anchor {
  std::string_view id;  // a letter, then letters, digits or hyphens
  std::string_view text;
};

// A document being written, from the top down. Texts are plain: they are escaped here.
class Prose {
 public:
  // `kicker` stands small above the title.
  Prose(std::string_view kicker, std::string_view title);

  void heading(std::string_view text, std::string_view id = {});
  void paragraph(std::string_view text);
  // Paragraphs with blank lines between them; line ends inside them are blanks.
  void paragraphs(std::string_view text);
  void formula(std::string_view text);
  void list(const std::vector<std::string>& items);
  // What each of some terms means.
  void definitions(const std::vector<std::pair<std::string, std::string>>& terms);
  void links(const std::vector<Anchor>& places);
  void table(const Sheet& sheet);

  // The whole page, with the study's source at its foot.
  [[nodiscard]] std::string page(const Study& study) const;

 private:
  std::string title_;
  std::string body_;
};

// A document that opens with what the settings say, or else with the title and paragraphs given.
[[nodiscard]] Prose opened(const Study& study, const DocumentText& text, std::string_view title,
                           std::string_view paragraphs);

}  // namespace study::pages
