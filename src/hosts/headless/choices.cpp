#include "hosts/headless/choices.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "forms/item_list.h"
#include "forms/tabs.h"
#include "hosts/headless/model_hands.h"

namespace headless {
namespace {

const std::vector<std::string>& choicesOf(const forms::Control& control) {
  if (const auto* list = dynamic_cast<const forms::ItemList*>(&control)) return list->items();
  if (const auto* tabs = dynamic_cast<const forms::TabControl*>(&control)) return tabs->captions;
  if (const auto* strip = dynamic_cast<const forms::TabStrip*>(&control)) return strip->captions;
  cannot(control, "selected from");
}

}  // namespace

int chosenIndex(const forms::Control& control, const Word& what) {
  const std::vector<std::string>& texts = choicesOf(control);
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

}  // namespace headless
