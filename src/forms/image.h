#pragma once

#include <memory>
#include <vector>

#include "forms/control.h"

namespace forms {

// A picture. `picture` names the artwork; hosts know how to draw it.
class Image : public Control {
 public:
  using Control::Control;

  std::string picture;  // part of the definition
  Event<> Click;
  Event<> DblClick;
  void userClick();
};

// Images under one name, told apart by an index; indices may be missing.
class ImageArray {
 public:
  // Elements for the indices given, named "name(index)".
  ImageArray(Form& form, const std::string& name, const std::vector<int>& indices);

  [[nodiscard]] const std::vector<int>& indices() const { return indices_; }
  // Fails with 9 when there is no such element.
  [[nodiscard]] Image& at(int index) const;

  Event<int> Click;
  Event<int> MouseMove;

 private:
  std::vector<int> indices_;
  std::vector<std::unique_ptr<Image>> images_;
};

}  // namespace forms
