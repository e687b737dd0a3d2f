// What walks over connected pipes share: a memory of the pipes seen, a queue of those still to visit, and
// attributes of an open pipe as text.
#pragma once

#include "frame/containers/zc_find_tree.h"
#include "frame/containers/zc_queue.h"
#include "host/drawing/entities.h"

namespace zwt {

/// State of one breadth-first walk.
class PipeWalk {
 public:
  /// Starts at a pipe, which counts as seen.
  explicit PipeWalk(AcDbObjectId start) {
    See(start);
    Visit(start);
  }

  /// Marks a pipe as seen; false if it was seen before.
  bool See(AcDbObjectId id) {
    ZcBTree<AcDbObjectId>* node = nullptr;
    return seen_.Insert(id, node);
  }
  /// Has a pipe visited after those that wait already.
  void Visit(AcDbObjectId id) { waiting_.Push(id); }
  /// The next pipe to visit; false when the walk is over.
  bool Next(AcDbObjectId& id) { return waiting_.Pop(id); }

 private:
  ZcBFindTree<AcDbObjectId> seen_;
  ZcListQuene<AcDbObjectId> waiting_{-1};
};

/// Text of an attribute of an open entity, empty where it has none.
inline CString FieldText(ZcDbEntity& entity, const wchar_t* key) {
  CString text;
  entity.Fields()->GetField(key, text);
  return text;
}

}  // namespace zwt
