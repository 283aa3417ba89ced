#include "hosts/windows/com/late_bound.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "hosts/windows/com/automation_object.h"

namespace windows {
namespace {

// Answers every name and notes what is asked of it.
class Answers final : public AutomationObject {
 public:
  Answers(const std::function<void()>& meanwhile, std::string& noted) : meanwhile_(meanwhile), noted_(noted) {}

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* ids) override {
    meanwhile_();
    noted_ += "name ";
    *ids = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    noted_ += "call ";
    return S_OK;
  }

 private:
  ~Answers() override { noted_ += "end "; }

  const std::function<void()>& meanwhile_;
  std::string& noted_;
};

class Bound : public ::testing::Test {
 protected:
  ComPtr<IDispatch> object() { return ComPtr<IDispatch>::owning(new Answers(meanwhile, noted)); }

  std::function<void()> meanwhile = [] {};
  std::string noted;
  LateBound bound{object()};
};

TEST_F(Bound, AsksForEachNameOnce) {
  (void)bound.read(L"uno");
  (void)bound.read(L"uno");
  EXPECT_EQ(noted, "name call call ");
}

TEST_F(Bound, KeepsTheObjectUntilItsCallIsOver) {
  meanwhile = [this] { bound = LateBound(ComPtr<IDispatch>()); };
  (void)bound.read(L"uno");
  EXPECT_EQ(noted, "name call end ");
}

TEST_F(Bound, AsksAnObjectThatTookItsPlaceForNamesOfItsOwn) {
  bool isFirst = true;
  meanwhile = [this, &isFirst] {
    if (std::exchange(isFirst, false)) bound = LateBound(object());
  };
  (void)bound.read(L"uno");
  EXPECT_EQ(noted, "name call end ");
  (void)bound.read(L"uno");
  EXPECT_EQ(noted, "name call end name call ");
}

}  // namespace
}  // namespace windows
