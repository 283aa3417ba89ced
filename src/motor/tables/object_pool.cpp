#include "motor/tables/object_pool.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include "motor/tables/flattened_geometry.h"
#include "text/utf8.h"

namespace motor {
namespace {

// Mixes eight bytes at a time; equal points give equal hashes, and those of a table are few.
std::uint64_t hashOf(const MapObject& object, std::uint32_t style) {
  constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
  std::uint64_t hash = style * kMultiplier + object.parts.size();
  for (const Point& p : object.points) {
    std::uint64_t bits[2];
    static_assert(sizeof bits == sizeof p);
    std::memcpy(bits, &p, sizeof bits);
    hash = (hash ^ bits[0]) * kMultiplier;
    hash = ((hash >> 29) ^ hash ^ bits[1]) * kMultiplier;
  }
  return hash ^ (hash >> 32);
}

// The box around a text: its real width depends on the font, this is that of letters of a common width.
Box textBounds(const MapObject& object) {
  constexpr double kWidthOfLetter = 0.55;  // as a part of the line's height
  std::size_t lines = 1;
  std::size_t longest = 0;
  std::size_t length = 0;
  for (const std::string& character : text::characters(object.text)) {
    length = character == "\n" ? 0 : length + 1;
    lines += character == "\n" ? 1 : 0;
    longest = std::max(longest, length);
  }
  const double width = static_cast<double>(longest) * object.lineHeight * kWidthOfLetter;
  const double height = static_cast<double>(lines) * object.lineHeight;
  const double angle = object.angle * std::numbers::pi / 180;
  const Point origin = object.points.front();
  Box box;
  for (const Point corner : {Point{0, 0}, Point{width, 0}, Point{0, height}, Point{width, height}}) {
    box.add(Point{origin.x + corner.x * std::cos(angle) - corner.y * std::sin(angle),
                  origin.y + corner.x * std::sin(angle) + corner.y * std::cos(angle)});
  }
  return box;
}

void applyStyle(const ObjectStyle& style, MapObject& object) {
  object.pen = style.pen;
  object.brush = style.brush;
  object.symbol = style.symbol;
  object.font = style.font;
  if (!style.isText || object.kind != MapObject::Kind::point) return;
  object.kind = MapObject::Kind::text;
  object.text = style.text;
  object.angle = style.angle;
  object.lineHeight = style.lineHeight;
}

}  // namespace

std::uint32_t ObjectPool::add(OGRGeometryH geometry, std::string_view style) {
  scratch_.points.clear();
  scratch_.parts.clear();
  appendFlattened(geometry, scratch_);
  if (scratch_.points.empty()) return kNone;
  const std::uint32_t number = styleNumber(style);
  if (last_ == kNone || !isScratch(entries_[last_], number)) last_ = addScratch(number);
  return last_;
}

std::uint32_t ObjectPool::styleNumber(std::string_view style) {
  if (lastStyle_ != kNone && styles_[lastStyle_].first == style) return lastStyle_;
  const auto [entry, isNew] = styleNumbers_.try_emplace(std::string(style), static_cast<std::uint32_t>(styles_.size()));
  if (isNew) styles_.emplace_back(style, parseObjectStyle(style));
  return lastStyle_ = entry->second;
}

bool ObjectPool::isScratch(const Entry& entry, std::uint32_t style) const {
  const MapObject& object = *entry.object;
  const bool isPoint = scratch_.kind == MapObject::Kind::point;
  const bool sameKind = object.kind == scratch_.kind || (isPoint && object.kind == MapObject::Kind::text);
  return entry.style == style && sameKind && object.parts == scratch_.parts &&
         object.points.size() == scratch_.points.size() &&
         std::memcmp(object.points.data(), scratch_.points.data(), object.points.size() * sizeof(Point)) == 0;
}

std::uint32_t ObjectPool::addScratch(std::uint32_t style) {
  const std::uint64_t hash = hashOf(scratch_, style);
  const auto [begin, end] = entriesByHash_.equal_range(hash);
  for (auto known = begin; known != end; ++known) {
    if (isScratch(entries_[known->second], style)) return known->second;
  }
  auto object = std::make_shared<MapObject>(scratch_);
  applyStyle(styles_[style].second, *object);
  if (object->kind == MapObject::Kind::text) {
    object->bounds = textBounds(*object);
  } else {
    for (const Point& p : object->points) object->bounds.add(p);
  }
  const auto number = static_cast<std::uint32_t>(entries_.size());
  entries_.push_back({std::move(object), style});
  entriesByHash_.emplace(hash, number);
  return number;
}

std::vector<ObjectPtr> ObjectPool::take() {
  std::vector<ObjectPtr> objects;
  objects.reserve(entries_.size());
  for (Entry& entry : entries_) objects.push_back(std::move(entry.object));
  *this = {};
  return objects;
}

}  // namespace motor
