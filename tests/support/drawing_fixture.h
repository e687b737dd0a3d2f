// A fresh working drawing for a test, with a user who picks pipes.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "host/drawing/drawing.h"
#include "host/drawing/entities.h"
#include "host/editor/front_end.h"
#include "host/editor/result_buffer.h"

namespace zwt::test {

/// Answers prompts: the next selection in the queue (nothing: cancelled), the next point status.
class PickingUser : public EditorFrontEnd {
 public:
  PickingUser() : before_(InstallFrontEnd(this)) {}
  PickingUser(const PickingUser&) = delete;
  PickingUser& operator=(const PickingUser&) = delete;
  ~PickingUser() override { InstallFrontEnd(before_); }

  std::optional<std::vector<AcDbObjectId>> SelectEntities(const CString& prompt, const EntityFilter& filter,
                                                          bool single) override {
    prompts.push_back(prompt);
    askedForOne = single;
    if (selections.empty()) return std::nullopt;
    std::vector<AcDbObjectId> passed;
    for (const AcDbObjectId id : selections.front()) {
      if (filter(id)) passed.push_back(id);
    }
    selections.pop_front();
    return passed;
  }

  std::int32_t GetPoint(const CString&, AcGePoint3d&) override {
    ++pointsAsked;
    if (points.empty()) return RTCAN;
    const std::int32_t answer = points.front();
    points.pop_front();
    return answer;
  }

  std::deque<std::vector<AcDbObjectId>> selections;
  std::deque<std::int32_t> points;
  std::vector<CString> prompts;
  bool askedForOne = false;
  int pointsAsked = 0;

 private:
  EditorFrontEnd* before_;
};

class DrawingTest : public testing::Test {
 protected:
  DrawingTest() : before_(ReplaceWorkingDrawing(std::make_unique<Drawing>())) {}
  ~DrawingTest() override { ReplaceWorkingDrawing(std::move(before_)); }

  static CString Field(AcDbObjectId id, const wchar_t* key) {
    CString text;
    ZwtGetEntityFields(id, key, text);
    return text;
  }
  static double DiameterOf(AcDbObjectId id) {
    ZcDbWtPipe* pipe = nullptr;
    if (acdbOpenAcDbObject(pipe, id, AcDb::kForRead) != Acad::eOk) return -1;
    const double diameter = pipe->GetDiameter();
    pipe->close();
    return diameter;
  }

  static void SetDiameterOf(AcDbObjectId id, double diameter) {
    WorkingDrawing().SetDiameter(WorkingDrawing().IndexOf(id), diameter);
  }

  PickingUser user;

 private:
  std::unique_ptr<Drawing> before_;
};

}  // namespace zwt::test
