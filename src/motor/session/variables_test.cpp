#include "motor/session/variables.h"

#include <gtest/gtest.h>

#include "motor/language/error.h"
#include "motor/tables/geometry.h"

namespace motor {
namespace {

// What the error says, or "accepted".
template <typename Action>
std::string answer(Action action) {
  try {
    action();
  } catch (const EngineError& e) {
    return e.what();
  }
  return "accepted";
}

constexpr const char* kTooMuch = "las variables no pueden ocupar en total más de 256 MB";

TEST(VariablesTest, areKnownByNameInAnyCase) {
  Variables variables;
  variables.declare("Año", 0);
  variables.assign("aÑO", 1999);
  EXPECT_EQ(*variables.find("AÑO"), Value(1999));
  variables.declare("AÑO", "");
  EXPECT_EQ(*variables.find("año"), Value(""));
  variables.forget("año");
  variables.forget("año");
  EXPECT_EQ(variables.find("año"), nullptr);
}

TEST(VariablesTest, areNotMoreThanTheMost) {
  Variables variables;
  for (std::size_t i = 0; i < Variables::kMost; ++i) variables.declare("a" + std::to_string(i), 0);
  EXPECT_EQ(answer([&] { variables.declare("uno", 0); }), "no puede haber más de 10000 variables");
  EXPECT_EQ(answer([&] { variables.declare("A7", ""); }), "accepted");
  variables.forget("a7");
  EXPECT_EQ(answer([&] { variables.declare("uno", 0); }), "accepted");
}

TEST(VariablesTest, doNotHoldMoreTextThanTheMost) {
  Variables variables;
  const std::string half(Variables::kMostBytes / 2, 'x');
  for (const char* name : {"a", "b"}) variables.declare(name, "");
  variables.assign("a", half);
  EXPECT_EQ(answer([&] { variables.assign("b", half); }), kTooMuch);
  EXPECT_EQ(*variables.find("b"), Value(""));
  EXPECT_EQ(answer([&] { variables.assign("a", half); }), "accepted") << "in the place of the first";
  EXPECT_EQ(answer([&] { variables.assign("b", std::string(half.size() - 1, 'x')); }), kTooMuch) << "names count";
  variables.declare("A", "");
  EXPECT_EQ(answer([&] { variables.assign("b", half); }), "accepted");
}

TEST(VariablesTest, doNotHoldMoreObjectsThanTheMost) {
  auto shape = std::make_shared<MapObject>();
  shape->points.resize(Variables::kMostBytes / sizeof(Point) / 2);
  const ObjectPtr object = std::move(shape);
  Variables variables;
  for (const char* name : {"a", "b"}) variables.declare(name, 0);
  variables.assign("a", object);
  EXPECT_EQ(answer([&] { variables.assign("b", object); }), kTooMuch);
}

}  // namespace
}  // namespace motor
