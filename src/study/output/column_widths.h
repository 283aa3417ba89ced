#pragma once

#include "study/model/study.h"

// How wide the text columns of a study's tables are, in characters: as wide as the longest text that they may hold,
// since tables keep every text at its column's width.
namespace study {

[[nodiscard]] int nameWidth(const Study& study);
[[nodiscard]] int sexWidth();
[[nodiscard]] int typeWidth();
[[nodiscard]] int indicatorWidth(const Study& study);

}  // namespace study
