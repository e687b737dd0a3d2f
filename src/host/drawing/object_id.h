// Identifiers of the things in a drawing.
#pragma once

#include <cstdint>
#include <functional>

#include "frame/containers/zc_list.h"

/// Names an entity, a layer or a text style of one drawing; of another drawing it names nothing.
struct AcDbObjectId {
  std::uint64_t value = 0;

  bool isNull() const { return value == 0; }
  auto operator<=>(const AcDbObjectId&) const = default;
};

template <>
struct std::hash<AcDbObjectId> {
  std::size_t operator()(AcDbObjectId id) const noexcept { return std::hash<std::uint64_t>()(id.value); }
};

using ZcDbObjectIdList = ZcList<AcDbObjectId>;
