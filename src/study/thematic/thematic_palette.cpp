#include "study/thematic/thematic_palette.h"

#include <array>

namespace study::palette {

namespace {

constexpr std::array kSequence{0xF4EFCB, 0xBFDBB0, 0x78B8A8, 0x3A87A0, 0x1D4C78};

// Which of the five are used by fewer classes.
constexpr std::array<std::array<std::size_t, 5>, 5> kChosen{{{2}, {1, 3}, {0, 2, 4}, {0, 1, 3, 4}, {0, 1, 2, 3, 4}}};

}  // namespace

std::vector<int> sequence(std::size_t classes) {
  std::vector<int> colours;
  for (std::size_t i = 0; i < classes; ++i) colours.push_back(kSequence.at(kChosen.at(classes - 1).at(i)));
  return colours;
}

}  // namespace study::palette
