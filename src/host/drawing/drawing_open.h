// The objects of a drawing that are open at the moment.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "host/drawing/drawing.h"
#include "host/drawing/entities.h"

namespace zwt {

struct Drawing::OpenObjects {
  /// By index of the entity: any number open for read, or one open for write.
  std::unordered_map<std::int32_t, std::vector<std::unique_ptr<ZcDbEntity>>> byEntity;
};

}  // namespace zwt
