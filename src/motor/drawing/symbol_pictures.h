#pragma once

#include <QImage>
#include <filesystem>

#include "motor/language/styles.h"

namespace motor {

// From now on the pictures of symbols are those in the application folder's folder "CustSymb", in whatever case its
// name is written; none where there is no such folder, or where it is a link out of the application's.
void useSymbolsOf(const std::filesystem::path& applicationFolder);

// The picture of Symbol("file", colour, size, flags), in its own pixels. Without flag 1 the places of the picture's
// white are open; with flag 2 all else has the symbol's colour, as dark as it was. Null where no such picture (BMP,
// PNG, GIF, JPEG) is in the folder, its name matched without regard to case, and for one of more than 512 pixels a
// side.
[[nodiscard]] QImage symbolPicture(const Symbol& symbol);

}  // namespace motor
