#include "hosts/headless/user.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "forms/combo_box.h"
#include "forms/image.h"
#include "forms/item_list.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/tabs.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "text/utf8.h"

namespace headless::user {
namespace {

[[noreturn]] void cannot(const forms::Control& control, const std::string& what) {
  throw ScriptError(control.name() + " cannot be " + what);
}

int indexOf(const forms::Control& control, const std::vector<std::string>& texts, const Word& what) {
  std::ptrdiff_t index = -1;
  if (!what.isQuoted && what.text.starts_with("#")) {
    const std::string digits = what.text.substr(1);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (error != std::errc() || end != digits.data() + digits.size()) throw ScriptError("no index: " + what.text);
  } else {
    const auto found = std::ranges::find(texts, what.text);
    if (found != texts.end()) index = found - texts.begin();
  }
  if (index < 0 || index >= std::ssize(texts)) {
    std::string all;
    for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + forms::quoted(text);
    throw ScriptError(control.name() + " has no " + what.text + "; it has " + (all.empty() ? "nothing" : all));
  }
  return static_cast<int>(index);
}

template <class Box>
void typeInto(Box& box, const std::string& text) {
  box.userFocus();
  box.userEdit("");
  for (const std::string& character : text::characters(text)) box.userEdit(box.text() + character);
}

}  // namespace

void click(forms::Control& control) {
  if (auto* label = dynamic_cast<forms::Label*>(&control)) return label->userClick();
  if (auto* image = dynamic_cast<forms::Image*>(&control)) return image->userClick();
  if (auto* button = dynamic_cast<forms::CommandButton*>(&control)) return button->userClick();
  if (auto* option = dynamic_cast<forms::OptionButton*>(&control)) return option->userRelease();
  cannot(control, "clicked");
}

void select(forms::Control& control, const Word& what) {
  if (auto* list = dynamic_cast<forms::ItemList*>(&control)) {
    return list->userPick(indexOf(control, list->items(), what));
  }
  if (auto* tabs = dynamic_cast<forms::TabControl*>(&control)) {
    return tabs->userPick(indexOf(control, tabs->captions, what));
  }
  if (auto* strip = dynamic_cast<forms::TabStrip*>(&control)) {
    return strip->userPick(indexOf(control, strip->captions, what));
  }
  cannot(control, "selected from");
}

void release(forms::Control& control) {
  auto* option = dynamic_cast<forms::OptionButton*>(&control);
  if (option == nullptr) cannot(control, "released");
  option->userRelease();
}

void type(forms::Control& control, const std::string& text) {
  if (auto* box = dynamic_cast<forms::TextBox*>(&control)) return typeInto(*box, text);
  if (auto* combo = dynamic_cast<forms::EditableCombo*>(&control)) return typeInto(*combo, text);
  cannot(control, "typed into");
}

void edit(forms::Control& control, const std::string& text) {
  if (auto* box = dynamic_cast<forms::TextBox*>(&control)) return box->userEdit(text);
  if (auto* combo = dynamic_cast<forms::EditableCombo*>(&control)) return combo->userEdit(text);
  cannot(control, "edited");
}

void tick(const forms::Form& form) {
  for (forms::Control* control : form.controls()) {
    if (auto* timer = dynamic_cast<forms::Timer*>(control)) timer->elapse();
  }
}

}  // namespace headless::user
