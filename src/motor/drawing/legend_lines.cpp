#include "motor/drawing/legend_lines.h"

#include <algorithm>
#include <cmath>

#include "motor/drawing/pens.h"
#include "text/spanish_number.h"

namespace motor {

namespace {

constexpr int kDecimals = 6;

std::string written(const Value& value) {
  if (value.number() != nullptr) return text::shortSpanishNumber(*value.number(), kDecimals);
  const std::string words = value.toText();
  return words.empty() ? "(en blanco)" : words;
}

std::string ownText(const ThemeClass& theme) {
  const std::string from = written(theme.minimum);
  return theme.maximum.isEmpty() ? from : from + " a " + written(theme.maximum);
}

// The lines as `wanted` lists them: the first one is that of all others, the next ones are those of the rows.
class WantedLines {
 public:
  WantedLines(const LegendLayer& wanted, const ThemeValues& values) : wanted_(wanted), values_(values) {}

  // Row 0 is that of all others, which shows by itself only if `ownShown`.
  [[nodiscard]] bool shows(std::size_t row, bool ownShown = true) const {
    return row < wanted_.rows.size() ? wanted_.rows[row].shown : ownShown;
  }
  [[nodiscard]] QString text(std::size_t row, const std::string& own) const {
    if (row < wanted_.rows.size()) {
      const LegendText& given = wanted_.rows[row].text;
      if (!given.automatic && given.text) return QString::fromStdString(values_.constant(*given.text).toText());
    }
    return QString::fromStdString(own);
  }

 private:
  const LegendLayer& wanted_;
  const ThemeValues& values_;
};

// What stands for a class: of what its style gives and the legend shows, that which suits the objects.
LegendSwatch swatchOf(const Styles& styles, const LegendLayer& wanted, const MapObject& sample) {
  using Kind = LegendSwatch::Kind;
  struct Choice {
    Kind kind;
    MapObject::Kind object;
    bool isThere;
  };
  const bool isRegion = sample.kind == MapObject::Kind::region;
  const bool isOwn = styles == Styles();  // the objects stay as they are
  const auto has = [&](MapObject::Kind kind, bool given) { return given || (isOwn && sample.kind == kind); };
  const Choice choices[] = {
      {Kind::region, MapObject::Kind::region,
       wanted.shades.value_or(true) && has(MapObject::Kind::region, styles.brush || (styles.pen && isRegion))},
      {Kind::line, MapObject::Kind::polyline,
       wanted.lines.value_or(true) && has(MapObject::Kind::polyline, styles.line || styles.pen)},
      {Kind::symbol, MapObject::Kind::point,
       wanted.symbols.value_or(true) && has(MapObject::Kind::point, styles.symbol.has_value())},
      {Kind::text, MapObject::Kind::text, has(MapObject::Kind::text, styles.font.has_value())},
  };
  const Choice* chosen = nullptr;
  for (const Choice& choice : choices) {
    if (choice.isThere && (chosen == nullptr || choice.object == sample.kind)) chosen = &choice;
  }
  if (chosen == nullptr) return {};
  LegendSwatch swatch{chosen->kind, styleWith(styles, sample), 0};
  if (chosen->kind == Kind::line && styles.line) swatch.style.pen = *styles.line;
  return swatch;
}

// All others come last, in either order.
std::vector<LegendLine> linesOf(const ClassTheme& theme, const LegendLayer& wanted, const WantedLines& rows,
                                const MapObject& sample) {
  std::vector<LegendLine> lines;
  const bool counts = wanted.count.value_or(false);
  const auto count = [&](const ThemeClass& c) { return counts ? std::optional(c.objects) : std::nullopt; };
  for (std::size_t i = 0; i < theme.classes().size(); ++i) {
    const ThemeClass& c = theme.classes()[i];
    if (rows.shows(i + 1)) {
      lines.push_back({swatchOf(c.styles, wanted, sample), rows.text(i + 1, ownText(c)), count(c)});
    }
  }
  if (!wanted.ascending.value_or(false)) std::reverse(lines.begin(), lines.end());
  const ThemeClass& others = theme.others();
  if (rows.shows(0, theme.drawsOthers() && others.objects > 0)) {
    lines.push_back({theme.drawsOthers() ? swatchOf(others.styles, wanted, sample) : LegendSwatch{},
                     rows.text(0, "los demás"), others.objects > 0 ? count(others) : std::nullopt});
  }
  return lines;
}

// The largest first, so that a column of symbols stands on its smallest; ascending the other way round.
std::vector<LegendLine> linesOf(const SymbolTheme& theme, const LegendLayer& wanted, const WantedLines& rows) {
  std::vector<double> samples = sampleValues(theme);
  if (theme.showsNegative()) {
    for (std::size_t i = samples.size(); i-- > 0;) samples.push_back(-samples[i]);
  }
  std::vector<LegendLine> lines;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const std::size_t row = samples.size() - i;  // the rows are in ascending order
    if (!rows.shows(row)) continue;
    LegendSwatch swatch;
    if (const Symbol* symbol = theme.symbolOf(samples[i]); symbol != nullptr && wanted.symbols.value_or(true)) {
      swatch.kind = LegendSwatch::Kind::sign;
      swatch.style.symbol = *symbol;
      swatch.points = theme.pointsOf(samples[i]);
    }
    lines.push_back({swatch, rows.text(row, text::shortSpanishNumber(samples[i], kDecimals)), std::nullopt});
  }
  if (wanted.ascending.value_or(false)) std::reverse(lines.begin(), lines.end());
  return lines;
}

// The parts in the order of the statement.
std::vector<LegendLine> linesOf(const Shade& shade, const ChartTheme& theme, const LegendLayer& wanted,
                                const WantedLines& rows) {
  std::vector<LegendLine> lines;
  const ChartLook& look = theme.look();
  for (std::size_t i = 0; i < look.parts.size(); ++i) {
    if (!rows.shows(i + 1)) continue;
    LegendSwatch swatch;
    swatch.kind = wanted.shades.value_or(true) ? LegendSwatch::Kind::region : LegendSwatch::Kind::none;
    swatch.style.brush = look.parts[i];
    swatch.style.pen = look.border;
    lines.push_back({swatch, rows.text(i + 1, shade.with[i].text), std::nullopt});
  }
  return lines;
}

std::vector<LegendLine> linesOf(const DensityTheme& theme, const LegendLayer& wanted, const WantedLines& rows) {
  constexpr int kDisc = 34;
  constexpr int kSquare = 32;
  LegendSwatch swatch;
  if (wanted.symbols.value_or(true)) swatch.kind = LegendSwatch::Kind::sign;
  swatch.style.symbol.shape = theme.isSquare() ? kSquare : kDisc;
  swatch.style.symbol.colour = theme.colour();
  swatch.points = (theme.width() + 1) / kPixelsPerPoint;  // with the sign's light edge
  const std::string own = "1 punto = " + text::shortSpanishNumber(theme.perDot(), kDecimals);
  if (!rows.shows(1)) return {};
  return {{swatch, rows.text(1, own), std::nullopt}};
}

// Of 1, 2 and 5 times a power of ten the one whose ratio to `number`, which is greater than 0, is nearest to 1.
double readable(double number) {
  const double power = std::pow(10, std::floor(std::log10(number)));
  double best = power;
  for (const double factor : {2.0, 5.0, 10.0}) {
    if (std::fabs(std::log(factor * power / number)) < std::fabs(std::log(best / number))) best = factor * power;
  }
  return best;
}

// The value whose symbol has a size, by halving: sizes never fall with the value.
double valueOfPoints(const SymbolTheme& theme, double points) {
  constexpr int kSteps = 60;
  double below = 0;
  double above = theme.greatest();
  for (int step = 0; step < kSteps; ++step) {
    const double middle = (below + above) / 2;
    (theme.pointsOf(middle) < points ? below : above) = middle;
  }
  return above;
}

}  // namespace

std::vector<double> sampleValues(const SymbolTheme& theme) {
  constexpr double kShares[] = {0.65, 0.35, 0.16};  // of the greatest size
  constexpr double kLeastPoints = 2;
  const double greatest = theme.greatest();
  if (!(greatest > 0)) return {};
  const bool areWhole = std::all_of(theme.values().begin(), theme.values().end(),
                                    [](double value) { return !std::isfinite(value) || value == std::floor(value); });
  const double hundredth = std::pow(10, std::floor(std::log10(greatest)) - 1);
  const bool isReadable = std::fabs(greatest / hundredth - std::round(greatest / hundredth)) < 1e-9;
  std::vector<double> samples{isReadable ? greatest : readable(greatest)};
  for (const double share : kShares) {
    double value = readable(valueOfPoints(theme, share * theme.pointsOf(greatest)));
    if (areWhole) value = std::max(1.0, value);
    if (value < samples.back() && theme.pointsOf(value) >= kLeastPoints) samples.push_back(value);
  }
  return samples;
}

std::vector<LegendLine> legendLines(const Layer& layer, const Theme& theme, const LegendLayer& wanted,
                                    const ThemeValues& values, const ObjectPtr& sample) {
  static const MapObject kRegion = [] {
    MapObject object;
    object.kind = MapObject::Kind::region;
    return object;
  }();
  const WantedLines rows(wanted, values);
  if (const auto* t = std::get_if<ClassTheme>(&theme)) return linesOf(*t, wanted, rows, sample ? *sample : kRegion);
  if (const auto* t = std::get_if<SymbolTheme>(&theme)) return linesOf(*t, wanted, rows);
  if (const auto* t = std::get_if<ChartTheme>(&theme)) return linesOf(*layer.theme, *t, wanted, rows);
  if (const auto* t = std::get_if<DensityTheme>(&theme)) return linesOf(*t, wanted, rows);
  return {};
}

}  // namespace motor
