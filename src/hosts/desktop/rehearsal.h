#pragma once

#include <string>

#include "motor/session/session.h"

namespace desktop {

// Opens a workspace and paints it once where nobody sees it, so that its tables are read, the libraries behind them
// loaded and the typefaces known when the program opens it. For a moment in which the program has nothing to do; takes
// about a tenth of a second. What goes wrong is left to the program's own opening to tell.
//
// On the program's thread, not beside it: the library of coordinate systems keeps a database for each thread; two
// libraries cannot load at the same time, so that the toolkit's plugins would wait; and a process that another thread
// forks while that database is being opened stops for ever.
void rehearse(const std::string& workspace, const motor::SessionOptions& options) noexcept;

}  // namespace desktop
