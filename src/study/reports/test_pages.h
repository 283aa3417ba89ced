#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "study/reports/page.h"

// What tests look for on pages.
namespace study::reports {

[[nodiscard]] inline std::vector<const TextMark*> textsOf(const Page& page) {
  std::vector<const TextMark*> texts;
  for (const Mark& mark : page.marks()) {
    if (const auto* text = std::get_if<TextMark>(&mark)) texts.push_back(text);
  }
  return texts;
}

// Whether a mark's text, or that of some lines together, holds it.
[[nodiscard]] inline bool hasText(const Page& page, std::string_view wanted) {
  std::string all;
  for (const TextMark* text : textsOf(page)) all += (all.empty() ? "" : " ") + text->text;
  for (std::size_t at = all.find("\u00A0"); at != std::string::npos; at = all.find("\u00A0")) all.replace(at, 2, " ");
  return all.find(wanted) != std::string::npos;
}

[[nodiscard]] inline bool hasText(const std::vector<Page>& pages, std::string_view wanted) {
  for (const Page& page : pages) {
    if (hasText(page, wanted)) return true;
  }
  return false;
}

[[nodiscard]] inline bool isWithin(const QRectF& inner, const QRectF& outer) {
  return outer.adjusted(-0.6, -0.6, 0.6, 0.6).contains(inner);
}

inline void expectWithin(const Page& page, const QRectF& box) {
  for (const Mark& mark : page.marks()) {
    const QRectF extent = markExtent(mark);
    const auto* text = std::get_if<TextMark>(&mark);
    EXPECT_TRUE(isWithin(extent, box)) << (text ? text->text : "a shape") << " at " << extent.x() << " " << extent.y()
                                       << ", " << extent.width() << " x " << extent.height();
  }
}

// No letters stand on others.
inline void expectLegible(const Page& page) {
  const std::vector<const TextMark*> texts = textsOf(page);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const QRectF box = markExtent(*texts[i]);
    const QRectF core = box.adjusted(0.3, box.height() * 0.2, -0.3, -box.height() * 0.2);
    for (std::size_t j = i + 1; j < texts.size(); ++j) {
      const QRectF other = markExtent(*texts[j]);
      EXPECT_FALSE(core.intersects(other.adjusted(0.3, other.height() * 0.2, -0.3, -other.height() * 0.2)))
          << texts[i]->text << " and " << texts[j]->text;
    }
  }
}

}  // namespace study::reports
