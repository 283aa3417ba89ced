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
#include "hosts/desktop/screen_picture.h"
#include "hosts/desktop/tour.h"

namespace {

constexpr const char* kUsage =
    "usage: tour APPFOLDER OUT [WIDTHxHEIGHT] [SCALE]\n"
    "Takes the program through its modes on a screen of that size and scale that nobody sees, and leaves a picture of\n"
    "each step in OUT.\n";

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

std::optional<double> scaleFrom(std::string_view text) {
  constexpr double kLargest = 4;
  double scale = 0;
  const auto [end, no] = std::from_chars(text.data(), text.data() + text.size(), scale);
  if (no != std::errc() || end != text.data() + text.size() || scale <= 0 || scale > kLargest) return std::nullopt;
  return scale;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  const auto size = words.size() < 3 ? QSize(1440, 900) : sizeFrom(words[2]);
  const auto scale = words.size() < 4 ? 1.0 : scaleFrom(words[3]);
  if (words.size() < 2 || words.size() > 4 || !size || !scale) {
    std::cerr << kUsage;
    return 2;
  }
  const desktop::UnseenScreen screen(*size, *scale);
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // what a screenless toolkit cannot do
  QApplication application(argc, argv);
  desktop::prepareApplication(application);

  const std::filesystem::path pictures = std::filesystem::absolute(words[1]);
  std::filesystem::create_directories(pictures);
  desktop::NotedPrograms programs;
  desktop::DesktopProgram program(std::filesystem::canonical(words[0]).string(), programs);
  desktop::Tour tour(program, programs, pictures, std::cout);
  return tour.walk() ? 0 : 1;
}
