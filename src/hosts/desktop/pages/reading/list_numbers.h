#pragma once

#include <QString>

#include "hosts/desktop/pages/reading/page_style.h"

namespace desktop::pages {

// What stands before an item of a numbered list ("3.", "c.", "III."); empty for marks that are no numbers. Letters and
// Roman numbers that there are not become figures.
[[nodiscard]] QString listNumber(ListMark mark, int number);

}  // namespace desktop::pages
