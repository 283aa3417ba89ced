#pragma once

#include <string>

namespace study {

// A document's title and its paragraphs, blank lines between them. An empty one gets the builder's own text.
struct DocumentText {
  std::string title;
  std::string text;
};

// What the settings say of the study's documents.
struct DocumentTexts {
  DocumentText presentation;
  DocumentText methodology;
  DocumentText use;
  DocumentText credits;
  DocumentText help;
  std::string source;  // of the figures, as maps, tables and reports name it
};

}  // namespace study
