#pragma once

#include <QSize>
#include <string>

namespace pictures {

// Compares what the screen shows with the golden picture of that name and of the screen's scale. With
// VELDORIA_UPDATE_GOLDEN=1 the picture is written anew instead, to be looked at before it is kept. A picture that
// differs is left in the folder of the test's run, with a map of the differences.
void expectScreen(const std::string& name);

// The scale of the screen.
[[nodiscard]] double screenScale();

// A size as part of a picture's name: "1024x768".
[[nodiscard]] std::string sizeName(QSize size);

}  // namespace pictures
