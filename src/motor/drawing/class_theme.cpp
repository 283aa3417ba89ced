#include "motor/drawing/class_theme.h"

#include "motor/drawing/class_index.h"

namespace motor {

namespace {

constexpr std::int16_t kOthers = -1;
constexpr std::int16_t kNone = -2;

// What a theme's attribute takes from a style: colours, sizes (widths of lines, sizes of symbols and letters) or all.
template <typename Style>
void take(Style& to, const std::optional<Style>& from, ThemeAttribute attribute, Colour Style::*colour) {
  if (!from) return;
  if (attribute == ThemeAttribute::all) to = *from;
  if (attribute == ThemeAttribute::colour) to.*colour = (*from).*colour;
}

void takePen(Pen& to, const std::optional<Pen>& from, ThemeAttribute attribute) {
  take(to, from, attribute, &Pen::colour);
  if (from && attribute == ThemeAttribute::size) to.width = from->width;
}

void takeSymbol(Symbol& to, const std::optional<Symbol>& from, ThemeAttribute attribute) {
  take(to, from, attribute, &Symbol::colour);
  if (from && attribute == ThemeAttribute::size) to.size = from->size;
}

void takeFont(Font& to, const std::optional<Font>& from, ThemeAttribute attribute) {
  take(to, from, attribute, &Font::fore);
  if (from && attribute == ThemeAttribute::size) to.size = from->size;
}

template <typename Style, typename Take>
std::optional<Style> used(const std::optional<Style>& common, const std::optional<Style>& own, ThemeAttribute attribute,
                          Take takeStyle) {
  if (!common) return own;
  Style style = *common;
  takeStyle(style, own, attribute);
  return style;
}

// A class's style after `Use`: the attribute of the class's own style, the rest of the common one.
Styles usedStyles(const Styles& common, const Styles& own, std::optional<ThemeAttribute> use) {
  if (!use || *use == ThemeAttribute::all) return own;
  const auto takeBrush = [](Brush& to, const std::optional<Brush>& from, ThemeAttribute attribute) {
    take(to, from, attribute, &Brush::fore);
  };
  return {used(common.pen, own.pen, *use, takePen), used(common.line, own.line, *use, takePen),
          used(common.brush, own.brush, *use, takeBrush), used(common.symbol, own.symbol, *use, takeSymbol),
          used(common.font, own.font, *use, takeFont)};
}

bool hidesWhatIsBelow(const Brush& brush) { return brush.pattern == 2 || (brush.pattern > 2 && brush.back >= 0); }

}  // namespace

ClassTheme::ClassTheme(const Layer& layer, const ShadeRanges& ranges) : apply_(ranges.apply) {
  const ThemeValues values(layer);
  const Styles common = values.styles(ranges.useStyle);
  for (const ShadeRange& range : ranges.ranges) {
    classes_.push_back({values.constant(*range.minimum), values.constant(*range.maximum),
                        usedStyles(common, values.styles(range.style), ranges.use)});
  }
  addOthers(ranges, values);
  classify(layer, values);
}

ClassTheme::ClassTheme(const Layer& layer, const ShadeValues& theme) : apply_(theme.apply) {
  const ThemeValues values(layer);
  const Styles common = values.styles(theme.useStyle);
  for (const ShadeValue& value : theme.values) {
    classes_.push_back(
        {values.constant(*value.value), Value(), usedStyles(common, values.styles(value.style), theme.use)});
  }
  addOthers(theme, values);
  classify(layer, values);
}

template <typename Kind>
void ClassTheme::addOthers(const Kind& kind, const ThemeValues& values) {
  drawsOthers_ = kind.otherwise.has_value();
  if (drawsOthers_) others_.styles = usedStyles(values.styles(kind.useStyle), values.styles(*kind.otherwise), kind.use);
}

void ClassTheme::classify(const Layer& layer, const ThemeValues& values) {
  if (layer.theme->with.empty()) return;
  const ClassIndex index(classes_);
  for (const std::optional<Value>& value : values.ofObjects(*layer.theme->with.front().expression)) {
    std::int16_t found = kNone;
    if (value) {
      const std::optional<std::size_t> number = index.find(*value);
      found = number ? static_cast<std::int16_t>(*number) : kOthers;
      ++(number ? classes_[*number] : others_).objects;
    }
    classOf_.push_back(found);
  }
}

const ThemeClass* ClassTheme::of(std::uint32_t object) const {
  const std::int16_t number = object < classOf_.size() ? classOf_[object] : kNone;
  if (number >= 0) return &classes_[static_cast<std::size_t>(number)];
  return number == kOthers && drawsOthers_ ? &others_ : nullptr;
}

DrawnStyle ClassTheme::shaded(const ThemeClass& theme, const MapObject& object, const DrawnStyle& without) const {
  DrawnStyle style = without;
  const Styles& own = theme.styles;
  takePen(style.pen, object.kind == MapObject::Kind::polyline && own.line ? own.line : own.pen, apply_);
  take(style.brush, own.brush, apply_, &Brush::fore);
  takeSymbol(style.symbol, own.symbol, apply_);
  takeFont(style.font, own.font, apply_);
  return style;
}

bool ClassTheme::covers(std::uint32_t index, const MapObject& object) const {
  const ThemeClass* theme = of(index);
  if (theme == nullptr || apply_ != ThemeAttribute::all) return false;
  switch (object.kind) {
    case MapObject::Kind::region:
      return theme->styles.brush && hidesWhatIsBelow(*theme->styles.brush);
    case MapObject::Kind::polyline:
      return theme->styles.line || theme->styles.pen;
    case MapObject::Kind::point:
      return theme->styles.symbol.has_value();
    case MapObject::Kind::text:
      return theme->styles.font.has_value();
  }
  return false;
}

}  // namespace motor
