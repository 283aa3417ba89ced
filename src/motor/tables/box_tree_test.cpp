#include "motor/tables/box_tree.h"

#include <gtest/gtest.h>

#include <random>

namespace motor {
namespace {

TEST(BoxTreeTest, findsWhatALinearSearchFinds) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(0, 1000);
  std::uniform_real_distribution<double> size(0, 30);
  for (const std::size_t count : {0U, 1U, 7U, 8U, 9U, 64U, 65U, 700U}) {
    std::vector<Box> boxes;
    for (std::size_t i = 0; i < count; ++i) {
      const double x = place(random);
      const double y = place(random);
      boxes.push_back(i % 11 == 5 ? Box{} : Box{x, y, x + size(random), y + size(random)});
    }
    const BoxTree tree(boxes);
    for (int i = 0; i < 50; ++i) {
      const double x = place(random);
      const double y = place(random);
      const Box area{x, y, x + 4 * size(random), y + 4 * size(random)};
      std::vector<std::uint32_t> expected;
      for (std::size_t k = 0; k < count; ++k) {
        if (boxes[k].intersects(area)) expected.push_back(static_cast<std::uint32_t>(k));
      }
      EXPECT_EQ(tree.find(area), expected) << count;
    }
  }
}

TEST(BoxTreeTest, countsTouching) {
  const BoxTree tree({Box{0, 0, 1, 1}, Box{1, 1, 1, 1}});
  EXPECT_EQ(tree.find(Box{1, 1, 2, 2}), (std::vector<std::uint32_t>{0, 1}));
  EXPECT_TRUE(tree.find(Box{}).empty());
}

}  // namespace
}  // namespace motor
