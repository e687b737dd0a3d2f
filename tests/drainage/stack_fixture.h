// Drainage stacks drawn for tests: riser segments of 3 m one above the other, each with a branch to the
// right.
#pragma once

#include "support/drawing_fixture.h"
#include "support/main_directory_fixture.h"

namespace zwt::test {

/// What a drainage branch carries, as its attributes hold it.
struct DrainBranch {
  CString equivalent = L"4.5";
  CString flux = L"1.5";
  CString qmax = L"1.5";
  CString maxDn = L"100";
  CString material = L"PVC-U排水管";
};

class StackTest : public DrawingTest {
 protected:
  static AcDbObjectId AddRiser(int floor, const wchar_t* role = L"立管", const wchar_t* vent = L"") {
    return WorkingDrawing().AddPipe({0, floor * 3000.0, 0}, {0, (floor + 1) * 3000.0, 0},
                                    {{L"WtSystem", L"污水"}, {L"ELS_TYPE", role}, {L"TQType", vent}});
  }
  static AcDbObjectId AddBranch(int floor, const DrainBranch& branch = {}) {
    const double y = (floor + 0.5) * 3000.0;
    return WorkingDrawing().AddPipe({0, y, 0}, {2000, y, 0},
                                    {{L"WtSystem", L"污水"},
                                     {L"ELS_TYPE", L"支管"},
                                     {L"Material", branch.material},
                                     {L"Equivalent", branch.equivalent},
                                     {L"Flux", branch.flux},
                                     {L"Qmax", branch.qmax},
                                     {L"MaxDN", branch.maxDn}});
  }
  /// A stack of so many floors; gives the end pipe.
  static AcDbObjectId AddStack(int floors, const wchar_t* vent = L"伸顶通气",
                               const DrainBranch& branch = {}) {
    const AcDbObjectId end = AddRiser(0, L"入口立管", vent);
    AddBranch(0, branch);
    for (int floor = 1; floor < floors; ++floor) {
      AddRiser(floor);
      AddBranch(floor, branch);
    }
    return end;
  }
  MainDirectory directory;
};

}  // namespace zwt::test
