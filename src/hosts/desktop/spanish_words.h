#pragma once

#include <QTranslator>

namespace desktop {

// The words that the toolkit's own Spanish leaves in English where users see them.
class SpanishWords : public QTranslator {
 public:
  using QTranslator::QTranslator;

  [[nodiscard]] bool isEmpty() const override { return false; }
  // A null string for all other words.
  [[nodiscard]] QString translate(const char* context, const char* source, const char* remark, int n) const override;
};

}  // namespace desktop
