// What a panel knows for the eye, put over the drawing: which row of a grid stands for which pipes, values at
// sections and points, and curves over a row of steps. A panel publishes it where somebody watches; a program
// without windows never does, and then nothing is put together at all. Plain data: nothing here calculates.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "host/drawing/geometry.h"
#include "host/drawing/object_id.h"
#include "host/text/wide_text.h"

namespace zwt {

/// A stretch of pipes that stands for a row of a grid, or for none.
struct OverlaySection {
  std::int32_t row = -1;              // of the section table
  std::vector<AcDbObjectId> pipes{};  // what a click on the row lights up
  std::vector<AcGePoint3d> course{};  // points in the direction of the water
  std::optional<double> value{};      // none before the calculation
  CString label{};                    // beside the section
};

/// A value at a place.
struct OverlayPoint {
  std::int32_t row = -1;  // of the point table
  AcGePoint3d place{};
  CString label{};
  bool marked = false;
};

/// How the value of a section shows.
enum class OverlayLook : std::uint8_t {
  kColour,  // from slow to fast
  kWidth,   // with an arrow along the course
};

/// A named row of numbers, one for each step of its profile.
struct OverlayCurve {
  CString quantity{};
  CString unit{};
  std::vector<double> values{};
};

/// Curves over the same steps: the storeys of a riser, the passes of an iteration.
struct OverlayProfile {
  CString title{};
  CString stepName{};
  std::vector<CString> steps{};
  std::vector<OverlayCurve> curves{};
  bool logarithmic = false;
};

struct Overlay {
  CString title{};
  OverlayLook look = OverlayLook::kColour;
  CString quantity{};  // of the section values
  CString unit{};
  CString labelMeaning{};         // what stands beside a section
  CString pointLabelMeaning{};    // beside a point
  CString markMeaning{};          // what a marked point is
  std::int32_t sectionTable = 0;  // numbers of the grid controls whose rows are meant, 0 for none
  std::int32_t pointTable = 0;
  std::vector<OverlaySection> sections{};
  std::vector<OverlayPoint> points{};
  std::vector<OverlayProfile> profiles{};
  std::vector<CString> notes{};
};

/// Hears of every overlay that is published or cleared.
class OverlayWatcher {
 public:
  virtual ~OverlayWatcher() = default;
  virtual void OnOverlayChanged() = 0;
};

/// Puts a watcher in force, or none (null); gives the one before it. Who sets it keeps it alive.
OverlayWatcher* SetOverlayWatcher(OverlayWatcher* watcher);

/// Whether somebody watches: without a watcher publishing does nothing, and need not be prepared.
bool IsOverlayWatched();

/// Puts an overlay in place of the one before it.
void PublishOverlay(Overlay overlay);
/// Takes away what was published.
void ClearOverlay();
/// What was published last; null for nothing.
const Overlay* CurrentOverlay();

/// The way along a pipe of the working drawing, from its start to its end, bends as a row of short lines;
/// empty where the identifier is that of no pipe.
std::vector<AcGePoint3d> PipeCourse(AcDbObjectId pipe);

/// The section of one pipe with what its row shows: a number as value, a nominal diameter (mm) as label. An
/// empty text gives none.
OverlaySection SectionOfPipe(std::int32_t row, AcDbObjectId pipe, const CString& value,
                             const CString& diameter);

}  // namespace zwt
