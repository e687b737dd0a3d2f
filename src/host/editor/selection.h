// The selection set of a command: the user picks pipes through the front end in force.
#pragma once

#include "host/drawing/object_id.h"
#include "host/drawing/status.h"
#include "host/editor/result_buffer.h"

class ZwtSelSet {
 public:
  /// Restricts the selection to one pick. The second argument, one pick at a time, follows from the first
  /// here.
  void setAllowSingleOnly(bool single, bool onePick = true);

  /// Asks the user. prompt2 (for taking entities out again) may be null and is not shown. eOk: something was
  /// selected; another status: cancelled or nothing, and the set is empty.
  Acad::ErrorStatus userSelect(const wchar_t* prompt, const wchar_t* prompt2, const resbuf* filter);

  /// The picked entities in picking order, each once.
  ZcDbObjectIdList asList() const { return picked_; }
  /// The first picked entity; none where nothing is selected.
  AcDbObjectId asEnt() const { return first_; }

 private:
  bool single_ = false;
  ZcDbObjectIdList picked_;
  AcDbObjectId first_;
};
