#include "motor/tables/object_set.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace motor {

ObjectSet::ObjectSet(std::vector<ObjectPtr> objects, std::vector<std::uint32_t> indexByRow)
    : objects_(std::move(objects)), indexByRow_(std::move(indexByRow)) {
  groupRows();
  addUpBounds();
}

ObjectSet::ObjectSet(const Table& table) : indexByRow_(table.rowCount(), kNone) {
  std::unordered_map<const MapObject*, std::uint32_t> indexes;
  for (RowId row = 1; row <= table.rowCount(); ++row) {
    if (table.isDeleted(row)) continue;
    const ObjectPtr& object = table.object(row);
    if (!object) continue;
    const auto [entry, isNew] = indexes.try_emplace(object.get(), static_cast<std::uint32_t>(objects_.size()));
    if (isNew) objects_.push_back(object);
    indexByRow_[row - 1] = entry->second;
  }
  groupRows();
  addUpBounds();
}

ObjectSet ObjectSet::withObjects(std::vector<ObjectPtr> objects) const {
  ObjectSet other;
  other.objects_ = std::move(objects);
  other.indexByRow_ = indexByRow_;
  other.rows_ = rows_;
  other.rowEnds_ = rowEnds_;
  other.addUpBounds();
  return other;
}

// A counting sort of the rows by their object.
void ObjectSet::groupRows() {
  std::vector<std::uint32_t> counts(objects_.size(), 0);
  for (const std::uint32_t index : indexByRow_) {
    if (index != kNone) ++counts[index];
  }
  rowEnds_.resize(objects_.size());
  std::uint32_t total = 0;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    rowEnds_[i] = total;
    total += counts[i];
  }
  rows_.resize(total);
  for (std::size_t i = 0; i < indexByRow_.size(); ++i) {
    if (indexByRow_[i] != kNone) rows_[rowEnds_[indexByRow_[i]]++] = static_cast<RowId>(i + 1);
  }
}

void ObjectSet::addUpBounds() {
  for (const ObjectPtr& object : objects_) bounds_.add(object->bounds);
}

std::span<const RowId> ObjectSet::rowsOf(std::uint32_t index) const {
  const std::uint32_t begin = index == 0 ? 0 : rowEnds_[index - 1];
  return {rows_.data() + begin, rowEnds_[index] - begin};
}

const BoxTree& ObjectSet::grownTree() const {
  std::vector<Box> boxes;
  boxes.reserve(objects_.size());
  for (const ObjectPtr& object : objects_) boxes.push_back(object->bounds);
  return tree_.emplace(boxes);
}

bool ObjectSet::covers(std::uint32_t index, Point p) const {
  if (grids_.empty()) grids_.resize(objects_.size());
  const CoverageGrid::Answer answer = grids_[index].at(p);
  return answer == CoverageGrid::Answer::unknown ? coversExactly(index, p) : answer == CoverageGrid::Answer::inside;
}

bool ObjectSet::coversExactly(std::uint32_t index, Point p) const {
  if (regions_.empty()) regions_.resize(objects_.size());
  std::shared_ptr<const RegionIndex>& region = regions_[index];
  if (region == nullptr) {
    const MapObject& object = *objects_[index];
    if (object.kind != MapObject::Kind::region || !object.bounds.contains(p)) return false;
    region = std::make_shared<const RegionIndex>(object);
    grids_[index] = CoverageGrid(object, *region);
  }
  return region->contains(p);
}

}  // namespace motor
