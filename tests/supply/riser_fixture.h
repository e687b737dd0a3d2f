// Supply risers drawn for tests: sections of 3 m one above the other, each with a branch to the right.
#pragma once

#include "support/drawing_fixture.h"

namespace zwt::test {

/// What a branch carries, as its attributes hold it.
struct Branch {
  CString equivalent = L"4";
  CString doorNum = L"2";
  CString userNum = L"3.5";
  CString ration = L"250";
  CString kh = L"2.8";
  CString time = L"24";
  CString material = L"PP-R管(S5)";
};

class RiserTest : public DrawingTest {
 protected:
  static constexpr double kStorey = 3000;

  static AcDbObjectId AddRiser(double x, int floor, const wchar_t* role = L"立管",
                               const wchar_t* system = L"给水") {
    return WorkingDrawing().AddPipe({x, floor * kStorey, 0}, {x, (floor + 1) * kStorey, 0},
                                    {{L"WtSystem", system}, {L"ELS_TYPE", role}, {L"Material", L"镀锌钢管"}});
  }

  static AcDbObjectId AddBranch(double x, int floor, const Branch& branch = {}) {
    return WorkingDrawing().AddPipe({x, (floor + 0.5) * kStorey, 0}, {x + 2000, (floor + 0.5) * kStorey, 0},
                                    {{L"WtSystem", L"给水"},
                                     {L"ELS_TYPE", L"支管"},
                                     {L"Material", branch.material},
                                     {L"Equivalent", branch.equivalent},
                                     {L"DoorNum", branch.doorNum},
                                     {L"UserNum", branch.userNum},
                                     {L"Ration", branch.ration},
                                     {L"Kh", branch.kh},
                                     {L"Time", branch.time}});
  }

  /// A riser of so many storeys with a branch on each; gives the entry pipe.
  static AcDbObjectId AddLine(double x, int storeys, const Branch& branch = {}) {
    const AcDbObjectId entry = AddRiser(x, 0, L"入口立管");
    AddBranch(x, 0, branch);
    for (int floor = 1; floor < storeys; ++floor) {
      AddRiser(x, floor);
      AddBranch(x, floor, branch);
    }
    return entry;
  }
};

}  // namespace zwt::test
