#include "forms/image.h"

#include "forms/form.h"
#include "text/failure.h"

namespace forms {

void Image::userClick() {
  if (enabled()) Click.raise();
}

ImageArray::ImageArray(Form& form, const std::string& name, const std::vector<int>& indices) : indices_(indices) {
  for (const int index : indices_) {
    images_.push_back(std::make_unique<Image>(form, name + "(" + std::to_string(index) + ")"));
    images_.back()->Click.add([this, index] { Click.raise(index); });
    images_.back()->MouseMove.add([this, index] { MouseMove.raise(index); });
  }
}

Image& ImageArray::at(int index) const {
  for (std::size_t i = 0; i < indices_.size(); ++i) {
    if (indices_[i] == index) return *images_[i];
  }
  throw failures::subscript();
}

}  // namespace forms
