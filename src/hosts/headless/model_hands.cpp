#include "hosts/headless/model_hands.h"

#include "forms/combo_box.h"
#include "forms/image.h"
#include "forms/item_list.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/tabs.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "hosts/headless/script_line.h"
#include "text/utf8.h"

namespace headless {
namespace {

template <class Box>
void typeInto(Box& box, const std::string& text) {
  box.userFocus();
  box.userEdit("");
  for (const std::string& character : text::characters(text)) box.userEdit(box.text() + character);
}

}  // namespace

void cannot(const forms::Control& control, const std::string& what) {
  throw ScriptError(control.name() + " cannot be " + what);
}

void ModelHands::click(forms::Control& control) {
  if (auto* label = dynamic_cast<forms::Label*>(&control)) return label->userClick();
  if (auto* image = dynamic_cast<forms::Image*>(&control)) return image->userClick();
  if (auto* button = dynamic_cast<forms::CommandButton*>(&control)) return button->userClick();
  if (auto* option = dynamic_cast<forms::OptionButton*>(&control)) return option->userRelease();
  cannot(control, "clicked");
}

void ModelHands::pick(forms::Control& control, int index) {
  if (auto* list = dynamic_cast<forms::ItemList*>(&control)) return list->userPick(index);
  if (auto* tabs = dynamic_cast<forms::TabControl*>(&control)) return tabs->userPick(index);
  if (auto* strip = dynamic_cast<forms::TabStrip*>(&control)) return strip->userPick(index);
  cannot(control, "selected from");
}

void ModelHands::release(forms::Control& control) {
  auto* option = dynamic_cast<forms::OptionButton*>(&control);
  if (option == nullptr) cannot(control, "released");
  option->userRelease();
}

void ModelHands::type(forms::Control& control, const std::string& text) {
  if (auto* box = dynamic_cast<forms::TextBox*>(&control)) return typeInto(*box, text);
  if (auto* combo = dynamic_cast<forms::EditableCombo*>(&control)) return typeInto(*combo, text);
  cannot(control, "typed into");
}

void ModelHands::edit(forms::Control& control, const std::string& text) {
  if (auto* box = dynamic_cast<forms::TextBox*>(&control)) return box->userEdit(text);
  if (auto* combo = dynamic_cast<forms::EditableCombo*>(&control)) return combo->userEdit(text);
  cannot(control, "edited");
}

void ModelHands::tick(forms::Form& form) {
  for (forms::Control* control : form.controls()) {
    if (auto* timer = dynamic_cast<forms::Timer*>(control)) timer->elapse();
  }
}

}  // namespace headless
