// Doubly linked list of the container family: a ZcList whose ring leads backward as well, so that stepping
// and walking back cost no more than forward.
#pragma once

#include <cstdint>

#include "frame/containers/zc_list.h"

template <class T>
struct ZcDListNode : ZcListNode<T> {
  ZcListNode<T>* previous = nullptr;
};

template <class T>
class ZcDList : public ZcList<T> {
 public:
  /// Holds `count` default elements.
  explicit ZcDList(std::int32_t count = 0) : ZcList<T>(kBothWays) { this->SetLength(count, false); }
  ZcDList(const ZcDList& other) : ZcDList() { this->DeepCopy(other); }
  ZcDList& operator=(const ZcDList& other) {
    if (this != &other) this->DeepCopy(other);
    return *this;
  }

  /// From the first element to the sentinel with cursor -1, from there to the last.
  void MoveToPre() override {
    if (current == head) return this->MoveToLast();
    current = this->PreviousOf(current);
    --cursor;
    if (current == head) this->StandOn(head, -1);
  }

  /// The first and the last directly, else a walk from the cursor, forward or backward.
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

 protected:
  using ZcList<T>::adrift;
  using ZcList<T>::current;
  using ZcList<T>::cursor;
  using ZcList<T>::head;
  using ZcList<T>::length;
  using ZcList<T>::tail;
  using typename ZcList<T>::Node;

  /// Node at a valid index, from the cursor in either direction.
  Node* NodeAt(std::int32_t index) const {
    if (index == 0) return head->next;
    if (index == length - 1) return tail;
    return WalkTo(index, adrift ? head : current, adrift ? -1 : cursor);
  }

  /// Node at a valid index, from a node whose index is known.
  Node* WalkTo(std::int32_t index, Node* node, std::int32_t at) const {
    for (; at < index; ++at) node = node->next;
    for (; at > index; --at) node = this->PreviousOf(node);
    return node;
  }

 private:
  using BackNode = ZcDListNode<T>;

  static Node* Make(const T& value) { return new BackNode{{value, nullptr}, nullptr}; }
  static void Free(Node* node) { delete static_cast<BackNode*>(node); }
  static void JoinBothWays(Node* front, Node* back) {
    front->next = back;
    static_cast<BackNode*>(back)->previous = front;
  }
  static Node* StepBack(const Node* node, Node* /*sentinel*/) {
    return static_cast<const BackNode*>(node)->previous;
  }
  static constexpr ZcNodeKind<T> kBothWays{&Make, &Free, &JoinBothWays, &StepBack};
};
