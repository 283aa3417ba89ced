#pragma once

#include <QImage>
#include <QString>

#include "motor/language/styles.h"

namespace motor {

// The toolkit's search path (QDir::addSearchPath) of the folders that pictures of symbols are read from.
inline constexpr const char* kSymbolFolders = "symbols";

// The picture of Symbol("file", colour, size, flags), in its own pixels. Without flag 1 the places of the picture's
// white are open; with flag 2 all else has the symbol's colour, as dark as it was. Null where no such picture is in the
// folders, where its name has a folder of its own, and for one of more than 512 pixels a side.
[[nodiscard]] QImage symbolPicture(const Symbol& symbol);

}  // namespace motor
