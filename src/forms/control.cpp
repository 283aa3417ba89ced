#include "forms/control.h"

#include "forms/form.h"
#include "text/number_text.h"

namespace forms {

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) {
  form_.controls_.push_back(this);
}

Control::Control(IsForm, Form& form, std::string name) : form_(form), name_(std::move(name)) {}

void Control::setLeft(Twips left) {
  base_.left = left;
  tell(Property::Left);
}

void Control::setTop(Twips top) {
  base_.top = top;
  tell(Property::Top);
}

void Control::setWidth(Twips width) {
  base_.width = width;
  tell(Property::Width);
}

void Control::setHeight(Twips height) {
  base_.height = height;
  tell(Property::Height);
}

void Control::place(Twips left, Twips top, Twips width, Twips height) {
  setLeft(left);
  setTop(top);
  setWidth(width);
  setHeight(height);
}

void Control::putInto(Control& container, int page) {
  container_ = &container;
  page_ = page;
}

void Control::setVisible(bool visible) {
  base_.visible = visible;
  tell(Property::Visible);
}

void Control::setEnabled(bool enabled) {
  base_.enabled = enabled;
  tell(Property::Enabled);
}

bool Control::isSeen() const {
  if (!base_.visible) return false;
  return container_ == nullptr || (container_->showsPage(page_) && container_->isSeen());
}

void Control::userMouseMove() { MouseMove.raise(); }

void Control::userFocus() {
  if (base_.enabled) GotFocus.raise();
}

std::int64_t Control::hWnd() const { return form_.listener().windowHandle(*this); }

std::string Control::describe(Property property) const {
  const auto logical = [](bool value) { return std::string(value ? "True" : "False"); };
  switch (property) {
    case Property::Visible:
      return logical(base_.visible);
    case Property::Enabled:
      return logical(base_.enabled);
    case Property::Left:
      return text::number(base_.left);
    case Property::Top:
      return text::number(base_.top);
    case Property::Width:
      return text::number(base_.width);
    case Property::Height:
      return text::number(base_.height);
    default:
      return "";
  }
}

bool Control::isLive() const { return !form_.isBeingDefined(); }

void Control::tell(Property property) {
  if (isLive()) form_.listener().written(*this, property);
}

std::string quoted(const std::string& s) {
  std::string result = "\"";
  for (const char c : s) {
    if (c == '"') result.push_back('"');
    result.push_back(c);
  }
  result.push_back('"');
  return result;
}

}  // namespace forms
