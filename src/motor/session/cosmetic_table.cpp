#include "motor/session/cosmetic_table.h"

#include <utility>

namespace motor {

CosmeticTable::CosmeticTable(CoordinateSystem system)
    : system_(std::move(system)), objects_(std::make_shared<std::deque<ObjectPtr>>()) {}

std::shared_ptr<const CosmeticTable> CosmeticTable::with(ObjectPtr object) const {
  auto table = std::make_shared<CosmeticTable>(system_);
  const bool isNewest = objects_->size() == count_;
  table->objects_ =
      isNewest ? objects_ : std::make_shared<std::deque<ObjectPtr>>(objects_->begin(), objects_->begin() + count_);
  table->bounds_ = bounds_;
  table->bounds_.add(object->bounds);
  table->objects_->push_back(std::move(object));
  table->count_ = count_ + 1;
  return table;
}

}  // namespace motor
