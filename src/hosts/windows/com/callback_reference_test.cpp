#include "hosts/windows/com/callback_reference.h"

#include <gtest/gtest.h>

namespace windows {
namespace {

class Object : public platform::CallbackObject {
 public:
  [[nodiscard]] std::string className() const override { return "MICallback"; }
  [[nodiscard]] std::vector<std::string> methods() const override { return {"info"}; }
  bool invoke(const std::string&, const std::string&) override { return true; }
};

// Whether one who holds the dispatch still reaches its object.
bool reachesItsObject(IDispatch& dispatch) {
  std::wstring name = L"info";
  LPOLESTR names = name.data();
  DISPID id = DISPID_UNKNOWN;
  return dispatch.GetIDsOfNames(IID_NULL, &names, 1, 0, &id) == S_OK;
}

TEST(CallbackReferenceTest, EndsTheConnectionOfWhoeverHasItsObject) {
  ComPtr<IDispatch> held;
  {
    const CallbackReference reference(std::make_shared<Object>());
    held = ComPtr<IDispatch>(reference.get());
    EXPECT_TRUE(reachesItsObject(*held.get()));
  }
  EXPECT_FALSE(reachesItsObject(*held.get()));
}

TEST(CallbackReferenceTest, EndsTheEarlierConnectionWhenItIsReplaced) {
  CallbackReference reference(std::make_shared<Object>());
  const ComPtr<IDispatch> earlier(reference.get());
  reference = CallbackReference(std::make_shared<Object>());
  EXPECT_FALSE(reachesItsObject(*earlier.get()));
  EXPECT_TRUE(reachesItsObject(*reference.get()));
}

TEST(CallbackReferenceTest, MayBeOfNoObject) {
  EXPECT_EQ(CallbackReference(nullptr).get(), nullptr);
  const CallbackReference none;
  EXPECT_EQ(none.get(), nullptr);
}

}  // namespace
}  // namespace windows
