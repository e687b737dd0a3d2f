// What asks the user for entities and points. Each program installs its own; without one every question is
// cancelled.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "host/drawing/geometry.h"
#include "host/drawing/object_id.h"
#include "host/text/wide_text.h"

namespace zwt {

/// Whether an entity of the working drawing may be picked.
using EntityFilter = std::function<bool(AcDbObjectId)>;

class EditorFrontEnd {
 public:
  virtual ~EditorFrontEnd() = default;

  /// Shows the prompt and has the user pick entities that pass the filter, just one where single is true. The
  /// picked entities in picking order; nothing where the user cancels.
  virtual std::optional<std::vector<AcDbObjectId>> SelectEntities(const CString& prompt,
                                                                  const EntityFilter& filter,
                                                                  bool single) = 0;

  /// Shows the prompt (it may be empty) and asks for a point: RTNORM with the point set, RTNONE or RTCAN.
  virtual std::int32_t GetPoint(const CString& prompt, AcGePoint3d& point) = 0;
};

/// Installs a front end, or none (null); gives the former one. Who installs it keeps it alive.
EditorFrontEnd* InstallFrontEnd(EditorFrontEnd* frontEnd);
EditorFrontEnd* CurrentFrontEnd();

}  // namespace zwt

/// Asks for a point. The base point is not shown; prompt and point may be null. RTNORM, RTNONE or RTCAN.
std::int32_t acedGetPoint(const AcGePoint3d* base, const wchar_t* prompt, AcGePoint3d* point);
