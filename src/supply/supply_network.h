// The supply riser system as the calculation sees it: one riser line for each entry pipe, one edge for each
// riser section, with the data of the branch that leaves it. Built from the drawing by a plain breadth-first
// walk.
#pragma once

#include <cstdint>

#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_list.h"
#include "host/drawing/object_id.h"
#include "host/text/wide_text.h"
#include "supply/supply_hydraulics.h"

/// One riser section together with the branch that leaves it.
struct ZwtVPipeEdge {
  AcDbObjectId pipeId;    // the riser section
  AcDbObjectId branchId;  // null where no branch leaves
  double length = 0;      // riser section, mm
  CString material;       // of the branch; empty where there is none
  double doorNum = 0;     // households on the branch
  double userNum = 0;     // persons per household
  double ration = 0;      // L per person and day
  double kh = 0;          // hourly variation coefficient
  double equivalent = 0;  // fixture equivalents
  std::int32_t time = 0;  // hours of use per day
};

/// One riser line in walking order: position 0 is the entry pipe, each later one lies further from it.
/// Position j stands for the section that carries floor j and everything beyond it.
class ZwtVPipeData : public ZcList<ZwtVPipeEdge> {
 public:
  /// Equivalents from position on to the last. The number of households does not multiply them.
  double SumEquivalent(std::int32_t position) const;
  /// Persons (households times persons per household) from position on to the last.
  double SumUsers(std::int32_t position) const;
};

namespace zwt {

/// Order of entry pipes: 1 if the end point of the first lies further right than that of the second, else -1,
/// equal ones included. A pipe that cannot be opened counts as X 0.
int CompareEndPointX(const AcDbObjectId& first, const AcDbObjectId& second);

/// Walks from an entry pipe over connected risers and appends what it found as one riser line. Pipes that
/// cannot be opened are passed over.
void BuildRiserData(ZcDList<ZwtVPipeData>& risers, AcDbObjectId entryPipe);

/// What the calculation of the section at a position takes: equivalents and persons from there to the end of
/// the line, quota, factor and hours of the section's own branch.
SupplySectionInput SectionInput(const ZwtVPipeData& riser, std::int32_t position);

/// Calls act(edge, riser index, position, riser line) for each section, riser by riser from its entry.
template <typename Action>
void ForEachSection(ZcDList<ZwtVPipeData>& risers, Action act) {
  std::int32_t riserIndex = 0;
  for (risers.MoveToFirst(); !risers.IsOut(); risers.MoveToNext(), ++riserIndex) {
    ZwtVPipeData& riser = risers.GetCurData();
    std::int32_t position = 0;
    for (riser.MoveToFirst(); !riser.IsOut(); riser.MoveToNext(), ++position) {
      act(riser.GetCurData(), riserIndex, position, riser);
    }
  }
}

/// The name of a section for the user, "2#-3层" for riser 1 and position 2, both counted from 0.
CString FormatSectionLabel(std::int32_t riser, std::int32_t position);

/// Riser and position, from 0, of a section's name; false if the text is none.
bool ParseSectionLabel(const CString& label, std::int32_t& riser, std::int32_t& position);

}  // namespace zwt
