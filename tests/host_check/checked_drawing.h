// Drawings made for the checks, and what is found in them.
#pragma once

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/check/drawing_check.h"
#include "host/drawing/drawing.h"
#include "host/drawing/tags.h"

namespace zwt::test {

class CheckedDrawing : public testing::Test {
 protected:
  /// Handle of a new pipe.
  std::uint64_t Pipe(const AcGePoint3d& start, const AcGePoint3d& end, FieldList fields = {}) {
    const AcDbObjectId id = drawing.AddPipe(start, end, fields);
    EXPECT_FALSE(id.isNull());
    return drawing.Entity(drawing.IndexOf(id)).handle;
  }

  void Set(std::uint64_t handle, const CString& key, const CString& text) {
    EXPECT_EQ(drawing.SetFields(drawing.FindHandle(handle), {{key, text}}), Acad::eOk);
  }
  void Erase(std::uint64_t handle) { EXPECT_EQ(drawing.Erase(drawing.FindHandle(handle)), Acad::eOk); }

  /// A handle as texts show it.
  static CString Name(std::uint64_t handle) { return WideFromUtf8(HandleText(handle)); }

  /// The findings of a kind.
  std::vector<Finding> Found(const std::string& kind) const {
    std::vector<Finding> found;
    for (Finding& finding : CheckDrawing(drawing, settings)) {
      if (finding.kind == kind) found.push_back(std::move(finding));
    }
    return found;
  }

  /// The one finding of a kind.
  Finding Only(const std::string& kind) const {
    const std::vector<Finding> found = Found(kind);
    EXPECT_EQ(found.size(), 1U) << kind;
    return found.empty() ? Finding{} : found.front();
  }

  std::vector<std::string> Kinds() const {
    std::vector<std::string> kinds;
    for (const Finding& finding : CheckDrawing(drawing, settings)) kinds.push_back(finding.kind);
    return kinds;
  }

  Drawing drawing;
  CheckSettings settings;
};

/// Texts and places side by side, as tests name them.
inline void ExpectFinding(const Finding& finding, const CString& text, const AcGePoint3d& place,
                          const std::vector<std::uint64_t>& handles) {
  EXPECT_EQ(Utf8FromWide(finding.text), Utf8FromWide(text));
  EXPECT_NEAR(finding.place.x, place.x, 1e-6);
  EXPECT_NEAR(finding.place.y, place.y, 1e-6);
  EXPECT_NEAR(finding.place.z, place.z, 1e-6);
  EXPECT_EQ(finding.handles, handles);
}

}  // namespace zwt::test
