#pragma once

#include <vector>

#include "hosts/desktop/pages/reading/page_style.h"
#include "hosts/desktop/pages/reading/style_sheet.h"

namespace desktop::pages {

// Puts what the declarations say into the style, the later over the earlier, important ones last. `outer` is the style
// of what the element stands in: sizes of fonts may be parts of its own. What means nothing here changes nothing.
void apply(const std::vector<const Declarations*>& declarations, const PageStyle& outer, PageStyle& style);

}  // namespace desktop::pages
