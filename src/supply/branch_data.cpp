// Branch values to and from the drawing, always in the same order.
#include "supply/branch_data.h"

#include "host/drawing/entities.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

/// Text of an attribute, empty where the pipe has none.
CString FieldText(AcDbObjectId id, const wchar_t* key) {
  CString text;
  ZwtGetEntityFields(id, key, text);
  return text;
}

}  // namespace

BranchData ReadBranchFields(AcDbObjectId branchId) {
  BranchData data;
  data.ration = _wtof(FieldText(branchId, L"Ration"));
  data.kh = _wtof(FieldText(branchId, L"Kh"));
  data.equivalent = _wtof(FieldText(branchId, L"Equivalent"));
  data.doorNum = _wtof(FieldText(branchId, L"DoorNum"));
  data.userNum = _wtof(FieldText(branchId, L"UserNum"));
  data.time = _wtoi(FieldText(branchId, L"Time"));
  return data;
}

void WriteBranchFields(AcDbObjectId branchId, const BranchData& data) {
  ZwtSetEntityFields(branchId, L"Ration", ZwtNum2Str(data.ration, -1));
  ZwtSetEntityFields(branchId, L"Kh", ZwtNum2Str(data.kh, -1));
  ZwtSetEntityFields(branchId, L"Equivalent", ZwtNum2Str(data.equivalent, -1));
  ZwtSetEntityFields(branchId, L"DoorNum", ZwtNum2Str(data.doorNum, -1));
  ZwtSetEntityFields(branchId, L"UserNum", ZwtNum2Str(data.userNum, -1));
  ZwtSetEntityFields(branchId, L"Time", ZwtNum2Str(data.time));
}

}  // namespace zwt
