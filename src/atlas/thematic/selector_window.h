#pragma once

namespace atlas {

class Atlas;

// The thematic selector as other windows see it: a top-level window found by its title.
[[nodiscard]] bool isSelectorOpen(Atlas& atlas);

// Loads and shows the selector and keeps it above all other windows.
void showSelectorOnTop(Atlas& atlas);
void keepSelectorOnTop(Atlas& atlas);

void closeSelector(Atlas& atlas);
void closeSelectorIfOpen(Atlas& atlas);

}  // namespace atlas
