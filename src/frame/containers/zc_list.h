// Singly linked list of the container family: a ring closed by a sentinel, each element in a node of its own.
// How a node is made, freed and linked is a table of four functions, so that ZcDList shares all the rest.
#pragma once

#include <algorithm>
#include <cstdint>

#include "frame/containers/zc_dyn_array_base.h"

/// The element comes first in its node, at the node's own address: that is how a pointer to it leads on.
template <class T>
struct ZcListNode {
  T data{};
  ZcListNode* next = nullptr;
};

/// What a list has to know about its nodes.
template <class T>
struct ZcNodeKind {
  using Node = ZcListNode<T>;

  Node* (*make)(const T& value);
  void (*free)(Node* node);
  void (*join)(Node* front, Node* back);
  /// The node in front of one of the ring: the sentinel in front of the first.
  Node* (*before)(const Node* node, Node* sentinel);
};

template <class T>
class ZcList : public ZcDynArrayBase<T> {
 public:
  using typename ZcDynArrayBase<T>::Compare;

  /// Holds `count` default elements.
  explicit ZcList(std::int32_t count = 0) : ZcList(kForward) { ZcList::ReAllocate(count); }
  ZcList(const ZcList& other) : ZcList(kForward) { this->DeepCopy(other); }
  ZcList& operator=(const ZcList& other) {
    if (this != &other) this->DeepCopy(other);
    return *this;
  }

 protected:
  /// Only grows, by default elements at the end; the cursor stays.
  void ReAllocate(std::int32_t newLength) override {
    if (length >= newLength) return;
    Node* const oldCurrent = current;
    const std::int32_t oldCursor = cursor;
    const bool wasAdrift = adrift;
    MoveToLast();
    for (std::int32_t missing = newLength - length; missing > 0; --missing) InsertAfterCur(T());
    StandOn(oldCurrent, oldCursor);
    adrift = wasAdrift;
  }

 public:
  ~ZcList() override {
    FreeChain(head->next);
    kind.free(head);
  }

  /// Grows as ReAllocate does, or deletes the elements at the end, with the cursor on the last that stays;
  /// `keep` has no effect.
  void SetLength(std::int32_t newLength, bool /*keep*/) override {
    newLength = std::max(newLength, 0);
    if (newLength >= length) return ReAllocate(newLength);
    MoveTo(newLength - 1);
    Node* const cut = current->next;
    DetachAfterCur();
    FreeChain(cut);
  }

  void Reset() override {
    FreeChain(head->next);
    Close();
    ZcDynArrayBase<T>::Reset();
  }

  T& GetCurData() override { return current->data; }
  void SetCurData(const T& value) override { current->data = value; }

  void MoveToFirst() override { StandOn(head->next, length == 0 ? -1 : 0); }
  /// From the last element to the sentinel, with cursor -1.
  void MoveToNext() override {
    current = current->next;
    ++cursor;
    if (current == head) StandOn(head, -1);
  }
  /// From the sentinel to the last element. Else a walk from the front.
  void MoveToPre() override {
    if (current == head) {
      MoveToLast();
    } else {
      MoveTo(cursor - 1);
    }
  }
  void MoveToLast() override { StandOn(tail, length - 1); }
  /// An index out of range puts the cursor on the sentinel, at -1.
  void MoveTo(std::int32_t index) override {
    if (!this->IsValidIndex(index)) {
      StandOn(head, -1);
    } else if (index == length - 1) {
      MoveToLast();
    } else {
      StandOn(NodeAt(index), index);
    }
  }

  const T* GetFirst() const override { return ElementOf(head->next); }
  const T* GetNext(const T* element) const override {
    return element == nullptr ? nullptr : ElementOf(NodeOf(element)->next);
  }
  /// A walk from the front.
  const T* GetPre(const T* element) const override {
    return element == nullptr ? nullptr : ElementOf(PreviousOf(NodeOf(element)));
  }
  const T* GetLast() const override { return ElementOf(tail); }

  const T& GetAt(std::int32_t index) const override {
    return this->IsValidIndex(index) ? NodeAt(index)->data : head->data;
  }

  void InsertCur(const T& value) override {
    MoveToPre();
    InsertAfterCur(value);
  }
  /// An index out of range, but for the length itself, inserts at the front.
  void Insert(std::int32_t index, const T& value) override {
    MoveTo(index - 1);
    InsertAfterCur(value);
  }
  void InsertHead(const T& value) override {
    MoveTo(-1);
    InsertAfterCur(value);
  }
  std::int32_t Append(const T& value) override {
    MoveToLast();
    InsertAfterCur(value);
    return length - 1;
  }

  void DelCur() override {
    if (current == head) return;
    Node* const doomed = current;
    Node* const before = PreviousOf(doomed);
    Join(before, doomed->next);
    if (tail == doomed) tail = before;
    kind.free(doomed);
    --length;
    current = before;
    --cursor;
    if (current == head) StandOn(head, -1);
  }

  /// An element that changes its place gets a new node there.
  void Sort(Compare compare) override { SortBy(zwt::GoesBehind<T>(compare)); }
  void Sort(bool ascending) override { SortBy(zwt::GoesBehind<T>(ascending)); }

  /// Inserts behind the cursor, at the front when it is at -1, and stands on the new element.
  virtual void InsertAfterCur(const T& value) {
    Node* const added = kind.make(value);
    Join(added, current->next);
    Join(current, added);
    if (tail == current) tail = added;
    current = added;
    ++cursor;
    ++length;
  }

  /// Cuts the list behind the cursor. The nodes cut off are not freed: the caller has taken them over before.
  virtual void DetachAfterCur() {
    if (adrift) StandOn(current, IndexOf(current));
    Join(current, head);
    tail = current;
    length = cursor + 1;
  }

  /// Moves the nodes of `other` from index `from` on to the end of this list and returns the new length. The
  /// cursor of this list stays, that of `other` ends on its last element. An invalid `from`, or this list
  /// itself as `other`, changes nothing. Between a list of one-way links and one of two-way links the
  /// elements move into new nodes.
  virtual std::int32_t Conbine(ZcList& other, std::int32_t from) {
    if (&other == this || !other.IsValidIndex(from)) return length;
    const std::int32_t count = other.length - from;
    other.MoveTo(from - 1);
    Node* const first = other.current->next;
    Node* const last = other.tail;
    if (&kind == &other.kind) {
      other.DetachAfterCur();
      AppendChain(first, last, count);
    } else {
      AppendCopies(first, count);
      other.DetachAfterCur();
      other.FreeChain(first);
    }
    return length;
  }

  /// Turns the links round. The cursor keeps its index and its element, which then no longer belong together:
  /// the next MoveToFirst, MoveToLast or MoveTo sets that right, and walks to an index don't start there
  /// before.
  virtual void ReverseList() {
    if (length < 2) return;
    Node* const first = head->next;
    Node* before = tail;
    Node* node = head;
    do {
      Node* const next = node->next;
      Join(node, before);
      before = node;
      node = next;
    } while (node != head);
    tail = first;
    adrift = current != head;
  }

  /// Turns the ring so that element a comes to index b, with the cursor on the first element. Nothing happens
  /// if a is b, or on an empty list.
  virtual void Rotate(std::int32_t a, std::int32_t b) {
    if (a == b || length == 0) return;
    const std::int32_t first = ((a - b) % length + length) % length;
    if (first != 0) {
      Node* const newTail = NodeAt(first - 1);
      Node* const newFirst = newTail->next;
      Join(tail, head->next);
      Join(newTail, head);
      Join(head, newFirst);
      tail = newTail;
    }
    MoveToFirst();
  }

  /// Cuts the list behind element `index`, as DetachAfterCur.
  void DetachAfter(std::int32_t index) {
    MoveTo(index);
    DetachAfterCur();
  }
  /// Empties the list without freeing a node.
  void Detach() { DetachAfter(-1); }

  /// Moves the elements from `index` on, or from the cursor on, to the end of `target`.
  void SplitAt(std::int32_t index, ZcList& target) {
    MoveTo(index);
    SplitAtCur(target);
  }
  void SplitAtCur(ZcList& target) { target.Conbine(*this, cursor); }

 protected:
  using ZcDynArrayBase<T>::cursor;
  using ZcDynArrayBase<T>::length;
  using Node = ZcListNode<T>;

  explicit ZcList(const ZcNodeKind<T>& nodeKind) : kind(nodeKind), head(kind.make(T())) { Close(); }

  void StandOn(Node* node, std::int32_t index) {
    current = node;
    cursor = index;
    adrift = false;
  }

  void Join(Node* front, Node* back) const { kind.join(front, back); }
  Node* PreviousOf(const Node* node) const { return kind.before(node, head); }

  /// Node at a valid index, or the sentinel for -1; from the cursor if that is not behind the index.
  Node* NodeAt(std::int32_t index) const {
    const bool fromCursor = !adrift && index >= cursor;
    Node* node = fromCursor ? current : head;
    for (std::int32_t at = fromCursor ? cursor : -1; at < index; ++at) node = node->next;
    return node;
  }

  const T* ElementOf(const Node* node) const { return node == head ? nullptr : &node->data; }
  static const Node* NodeOf(const T* element) { return reinterpret_cast<const Node*>(element); }

  template <class Rule>
  void SortBy(Rule goesBehind) {
    const std::int32_t keptCursor = cursor;
    StandOn(head, -1);
    Node* sorted = head->next;
    while (sorted->next != head && sorted != head) {
      Node* const place = LastAccepting(sorted, sorted->next->data, goesBehind);
      if (place == sorted) {
        sorted = sorted->next;
      } else {
        MoveNextOf(sorted, place);
      }
    }
    MoveTo(keptCursor);
  }

  const ZcNodeKind<T>& kind;
  /// True after ReverseList, while the cursor's index and its node don't belong together.
  bool adrift = false;
  Node* current = nullptr;
  Node* head = nullptr;
  Node* tail = nullptr;

 private:
  static Node* Make(const T& value) { return new Node{value, nullptr}; }
  static void Free(Node* node) { delete node; }
  static void JoinForward(Node* front, Node* back) { front->next = back; }
  static Node* WalkToBefore(const Node* node, Node* sentinel) {
    Node* before = sentinel;
    while (before->next != node) before = before->next;
    return before;
  }
  static constexpr ZcNodeKind<T> kForward{&Make, &Free, &JoinForward, &WalkToBefore};

  /// Frees from a node up to the sentinel.
  void FreeChain(Node* node) const {
    while (node != head) {
      Node* const next = node->next;
      kind.free(node);
      node = next;
    }
  }

  /// The ring of the sentinel alone.
  void Close() {
    Join(head, head);
    tail = head;
    StandOn(head, -1);
  }

  std::int32_t IndexOf(const Node* node) const {
    std::int32_t index = -1;
    for (const Node* at = head; at != node; at = at->next) ++index;
    return index;
  }

  void AppendChain(Node* first, Node* last, std::int32_t count) {
    Join(tail, first);
    Join(last, head);
    tail = last;
    length += count;
  }

  void AppendCopies(const Node* source, std::int32_t count) {
    ZcList copies(kind);
    for (std::int32_t done = 0; done < count; ++done, source = source->next)
      copies.ZcList::InsertAfterCur(source->data);
    Node* const first = copies.head->next;
    Node* const last = copies.tail;
    copies.Close();
    AppendChain(first, last, count);
  }

  /// The last node up to `end` that accepts the element behind it, or the sentinel.
  template <class Rule>
  Node* LastAccepting(Node* end, const T& element, Rule goesBehind) const {
    if (goesBehind(end->data, element)) return end;
    Node* accepting = head;
    for (Node* node = head->next; node != end; node = node->next) {
      if (goesBehind(node->data, element)) accepting = node;
    }
    return accepting;
  }

  void MoveNextOf(Node* sorted, Node* place) {
    Node* const old = sorted->next;
    Node* const moved = kind.make(old->data);
    Join(sorted, old->next);
    if (tail == old) tail = sorted;
    kind.free(old);
    Join(moved, place->next);
    Join(place, moved);
  }
};
