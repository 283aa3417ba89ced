#pragma once

#include <QImage>
#include <filesystem>

namespace pictures {

// Compares a picture with the golden one in a file. With VELDORIA_UPDATE_GOLDEN=1 the file is written anew instead, to
// be looked at before it is kept, its shades rounded to a multiple of `shadeStep`, much less than the comparison lets
// pass. A picture that differs is left in the folder of the test's run, with a map of the differences.
void expectPicture(const QImage& actual, const std::filesystem::path& golden, int shadeStep = 5);

}  // namespace pictures
