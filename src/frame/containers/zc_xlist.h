// List of the container family with anchors for fast indexing: every groupSize-th node is kept in a table, so
// that an access by index walks at most groupSize steps from there.
#pragma once

#include <algorithm>
#include <cstdint>

#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_dyn_array.h"

template <class T>
class ZcXList : public ZcDList<T> {
 public:
  using typename ZcDList<T>::Compare;

  /// Holds `count` default elements, with an anchor for every `nodesPerAnchor` nodes (at least 1). The table
  /// of anchors grows with the slack `allocUnit`.
  explicit ZcXList(std::int32_t count = 0, std::int32_t nodesPerAnchor = 64, std::int32_t allocUnit = 64)
      : anchors(0, allocUnit), groupSize(std::max(nodesPerAnchor, 1)) {
    this->SetLength(count, false);
  }
  /// A copy has anchors at the same distance; an assignment keeps its own.
  ZcXList(const ZcXList& other) : ZcXList(0, other.groupSize, other.anchors.GetAllocUnit()) {
    this->DeepCopy(other);
  }
  ZcXList& operator=(const ZcXList& other) {
    if (this != &other) this->DeepCopy(other);
    return *this;
  }

  void Reset() override {
    DropAnchors(0);
    ZcDList<T>::Reset();
  }

  void MoveTo(std::int32_t index) override {
    if (this->IsValidIndex(index)) {
      this->StandOn(NodeAt(index), index);
    } else {
      this->StandOn(head, -1);
    }
  }
  const T& GetAt(std::int32_t index) const override {
    return this->IsValidIndex(index) ? NodeAt(index)->data : head->data;
  }

  void DelCur() override {
    if (current == head) return;
    if (adrift) {
      DropAnchors(0);
      ZcDList<T>::DelCur();
      return UpdateGroup(0);
    }
    DropAnchors(GroupCount(length - 1));
    for (std::int32_t group = FirstGroupFrom(cursor); group < anchors.GetLength(); ++group) {
      Anchor(group) = Anchor(group)->next;
    }
    ZcDList<T>::DelCur();
  }

  void Sort(Compare compare) override { SortBy(zwt::GoesBehind<T>(compare)); }
  void Sort(bool ascending) override { SortBy(zwt::GoesBehind<T>(ascending)); }

  void InsertAfterCur(const T& value) override {
    ReserveAnchors(length + 1);
    ZcDList<T>::InsertAfterCur(value);
    if (adrift) return UpdateGroup(0);
    for (std::int32_t group = FirstGroupFrom(cursor); group < anchors.GetLength(); ++group) {
      Anchor(group) = this->PreviousOf(Anchor(group));
    }
    if (anchors.GetLength() < GroupCount(length)) anchors.Append(tail);
  }

  void DetachAfterCur() override {
    ZcDList<T>::DetachAfterCur();
    DropAnchors(GroupCount(length));
  }

  std::int32_t Conbine(ZcList<T>& other, std::int32_t from) override {
    if (other.IsValidIndex(from)) ReserveAnchors(length + other.GetLength() - from);
    ZcDList<T>::Conbine(other, from);
    UpdateGroup(anchors.GetLength());
    return length;
  }

  void ReverseList() override {
    DropAnchors(0);
    ZcDList<T>::ReverseList();
    UpdateGroup(0);
  }

  void Rotate(std::int32_t a, std::int32_t b) override {
    DropAnchors(0);
    ZcDList<T>::Rotate(a, b);
    UpdateGroup(0);
  }

 protected:
  using ZcDList<T>::adrift;
  using ZcDList<T>::current;
  using ZcDList<T>::cursor;
  using ZcDList<T>::head;
  using ZcDList<T>::length;
  using ZcDList<T>::tail;
  using typename ZcDList<T>::Node;

  /// Fills the anchors anew from a group on, which must be at most their number.
  void UpdateGroup(std::int32_t group) {
    ReserveAnchors(length);
    DropAnchors(group);
    if (group >= GroupCount(length)) return;
    std::int32_t index = group * groupSize;
    Node* node = group == 0 ? head->next : this->WalkTo(index, Anchor(group - 1), index - groupSize);
    anchors.Append(node);
    while (length - index > groupSize) {
      node = this->WalkTo(index + groupSize, node, index);
      index += groupSize;
      anchors.Append(node);
    }
  }

  /// Sorting makes new nodes; the anchors are right again also when a comparison throws.
  template <class Rule>
  void SortBy(Rule goesBehind) {
    DropAnchors(0);
    try {
      ZcDList<T>::SortBy(goesBehind);
    } catch (...) {
      UpdateGroup(0);
      throw;
    }
    UpdateGroup(0);
  }

  /// Anchors[k] is the node at index k * groupSize.
  ZcDynArray<Node*> anchors;
  std::int32_t groupSize;

 private:
  Node*& Anchor(std::int32_t group) { return *anchors.GetTo(group); }

  std::int32_t GroupCount(std::int32_t count) const { return count == 0 ? 0 : (count - 1) / groupSize + 1; }

  /// The first group whose anchor stands at an index or behind it.
  std::int32_t FirstGroupFrom(std::int32_t index) const { return GroupCount(index); }

  void DropAnchors(std::int32_t kept) { anchors.DecreaseSize(std::max(anchors.GetLength() - kept, 0)); }

  /// Makes room before the list is touched, so that running out of memory leaves list and anchors in step.
  void ReserveAnchors(std::int32_t count) {
    const std::int32_t needed = GroupCount(count);
    if (needed > anchors.GetSpaceSize()) anchors.SetSpaceSize(needed + anchors.GetAllocUnit());
  }

  Node* NodeAt(std::int32_t index) const {
    const std::int32_t group = index / groupSize;
    if (index == length - 1 || !anchors.IsValidIndex(group)) return ZcDList<T>::NodeAt(index);
    return this->WalkTo(index, anchors.GetAt(group), group * groupSize);
  }
};
