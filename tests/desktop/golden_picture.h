#pragma once

#include <QSize>
#include <string>

namespace pictures {

// Compares what the screen shows with the golden picture of that name and of the screen's scale, as expectPicture does.
void expectScreen(const std::string& name);

// The scale of the screen.
[[nodiscard]] double screenScale();

// A size as part of a picture's name: "1024x768".
[[nodiscard]] std::string sizeName(QSize size);

}  // namespace pictures
