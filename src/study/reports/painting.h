#pragma once

#include <QPainter>

#include "study/reports/page.h"

namespace study::reports {

// Paints a page from the device's upper left corner, in the device's own resolution.
void paint(const Page& page, QPainter& painter);

}  // namespace study::reports
