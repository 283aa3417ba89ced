#pragma once

#include <string>

#include "hosts/headless/hands.h"

namespace headless {

// Hands that tell the models what a host would tell them.
class ModelHands : public Hands {
 public:
  void click(forms::Control& control) override;
  void pick(forms::Control& control, int index) override;
  void enter(forms::Control& control) override { control.userFocus(); }
  void release(forms::Control& control) override;
  void pointAt(forms::Control& control) override { control.userMouseMove(); }
  void type(forms::Control& control, const std::string& text) override;
  void edit(forms::Control& control, const std::string& text) override;
  void doubleClick(forms::Form& form) override { form.userDoubleClick(); }
  void close(forms::Form& form) override { form.userClose(); }
  void resize(forms::Form& form, forms::Twips width, forms::Twips height) override { form.userResize(width, height); }
  void minimize(forms::Form& form) override { form.userMinimize(); }
  void restore(forms::Form& form) override { form.userRestore(); }
  void tick(forms::Form& form) override;
};

// Says that a control cannot be "clicked", "picked from" or the like.
[[noreturn]] void cannot(const forms::Control& control, const std::string& what);

}  // namespace headless
