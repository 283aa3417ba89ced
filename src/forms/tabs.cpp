#include "forms/tabs.h"

#include "text/failure.h"

namespace forms {
namespace {

void checkTab(int index, std::size_t count) {
  if (index < 0 || index >= static_cast<int>(count)) throw failures::invalidPropertyValue();
}

}  // namespace

const std::string& TabStrip::selectedCaption() const { return captions.at(static_cast<std::size_t>(state_.tab)); }

std::string TabStrip::describe(Property property) const {
  return property == Property::SelectedItem ? quoted(selectedCaption()) : Control::describe(property);
}

void TabStrip::userPick(int index) {
  checkTab(index, captions.size());
  if (!enabled()) return;
  state_.tab = index;
  Click.raise();
}

void TabControl::setTab(int tab) {
  checkTab(tab, captions.size());
  const int left = state_.tab;
  state_.tab = tab;
  tell(Property::Tab);
  if (left != tab && isLive()) Click.raise(left);
}

std::string TabControl::describe(Property property) const {
  return property == Property::Tab ? std::to_string(state_.tab) : Control::describe(property);
}

void TabControl::userPick(int tab) {
  checkTab(tab, captions.size());
  if (!enabled() || tab == state_.tab) return;
  const int left = state_.tab;
  state_.tab = tab;
  Click.raise(left);
}

}  // namespace forms
