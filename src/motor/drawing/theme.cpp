#include "motor/drawing/theme.h"

#include <algorithm>

namespace motor {

namespace {

struct Evaluation {
  const Layer& layer;

  Theme operator()(const ShadeRanges& kind) const { return ClassTheme(layer, kind); }
  Theme operator()(const ShadeValues& kind) const { return ClassTheme(layer, kind); }
  Theme operator()(const ShadeGraduated& kind) const { return SymbolTheme(layer, kind); }
  Theme operator()(const ShadeChart& kind) const { return ChartTheme(layer, kind); }
  Theme operator()(const ShadeDensity& kind) const { return DensityTheme(layer, kind); }
};

Theme evaluated(const Layer& layer) {
  try {
    return std::visit(Evaluation{layer}, layer.theme->kind);
  } catch (const LanguageError&) {
    return {};
  } catch (const EngineError&) {
    return {};
  }
}

}  // namespace

const Theme& Themes::of(const Layer& layer) {
  const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
    return entry.shade.lock() == layer.theme && entry.table.lock() == layer.table;
  });
  if (known != entries_.end()) return *known->theme;
  ++evaluated_;
  entries_.push_back({layer.theme, layer.table, std::make_unique<const Theme>(evaluated(layer))});
  return *entries_.back().theme;
}

void Themes::dropUnused() {
  std::erase_if(entries_, [](const Entry& entry) { return entry.shade.expired() || entry.table.expired(); });
}

}  // namespace motor
