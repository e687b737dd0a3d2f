#include "host/editor/front_end.h"

#include <utility>

#include "host/editor/result_buffer.h"

namespace zwt {
namespace {

EditorFrontEnd*& Installed() {
  static EditorFrontEnd* frontEnd = nullptr;
  return frontEnd;
}

}  // namespace

EditorFrontEnd* InstallFrontEnd(EditorFrontEnd* frontEnd) {
  return std::exchange(Installed(), frontEnd);
}

EditorFrontEnd* CurrentFrontEnd() {
  return Installed();
}

}  // namespace zwt

std::int32_t acedGetPoint(const AcGePoint3d* /*base*/, const wchar_t* prompt, AcGePoint3d* point) {
  zwt::EditorFrontEnd* frontEnd = zwt::CurrentFrontEnd();
  if (frontEnd == nullptr) return RTCAN;
  AcGePoint3d picked;
  const std::int32_t answer = frontEnd->GetPoint(prompt == nullptr ? CString() : CString(prompt), picked);
  if (answer == RTNORM && point != nullptr) *point = picked;
  return answer;
}
