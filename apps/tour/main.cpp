#include <QApplication>
#include <QSize>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/desktop/desktop_program.h"
#include "hosts/desktop/tour.h"

namespace {

constexpr const char* kUsage =
    "usage: tour APPFOLDER OUT [WIDTHxHEIGHT] [SCALE]\n"
    "Takes the program through its modes without a display and leaves a picture of each step in OUT.\n";

std::optional<QSize> sizeFrom(std::string_view text) {
  int width = 0;
  int height = 0;
  const char* end = text.data() + text.size();
  const auto [cross, noWidth] = std::from_chars(text.data(), end, width);
  if (noWidth != std::errc() || cross == end || *cross != 'x') return std::nullopt;
  const auto [last, noHeight] = std::from_chars(cross + 1, end, height);
  if (noHeight != std::errc() || last != end || width <= 0 || height <= 0) return std::nullopt;
  return QSize(width, height);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  const auto size = words.size() < 3 ? QSize(1280, 860) : sizeFrom(words[2]);
  if (words.size() < 2 || words.size() > 4 || !size) {
    std::cerr << kUsage;
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // what a screenless toolkit cannot do
  if (words.size() == 4) qputenv("QT_SCALE_FACTOR", QByteArray::fromStdString(words[3]));
  QApplication application(argc, argv);
  desktop::prepareApplication(application);

  const std::filesystem::path pictures = std::filesystem::absolute(words[1]);
  std::filesystem::create_directories(pictures);
  desktop::UserPrograms programs;
  desktop::DesktopProgram program(std::filesystem::canonical(words[0]).string(), programs);
  program.host().setFirstSize(*size);
  desktop::Tour tour(program, pictures, std::cout);
  return tour.walk() ? 0 : 1;
}
