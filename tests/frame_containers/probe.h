// A look inside the containers: the links of a list's ring both ways, its tail, and the anchors of an indexed
// list.
#pragma once

#include <cstdint>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_dyn_array.h"
#include "frame/containers/zc_xlist.h"

namespace zwt::test {

template <class Container, class Element>
inline constexpr bool kIsList = std::is_base_of_v<ZcList<Element>, Container>;
template <class Container, class Element>
inline constexpr bool kLinksBack = std::is_base_of_v<ZcDList<Element>, Container>;
template <class Container, class Element>
inline constexpr bool kHasAnchors = std::is_base_of_v<ZcXList<Element>, Container>;

/// A list whose inside can be checked. Element is the type of its slots.
template <class List, class Element>
class ListProbe : public List {
 public:
  using List::List;

  void CheckRing() const {
    const ZcListNode<Element>* before = this->head;
    std::int32_t index = 0;
    for (const auto* node = this->head->next; node != this->head; node = node->next, ++index) {
      ASSERT_LT(index, this->length) << "the ring is longer than the list";
      CheckBackLink(node, before);
      CheckAnchor(node, index);
      if (node == this->current && !this->adrift) {
        EXPECT_EQ(this->cursor, index);
      }
      before = node;
    }
    EXPECT_EQ(index, this->length);
    EXPECT_EQ(this->tail, before);
    CheckBackLink(this->head, before);
    CheckNumberOfAnchors();
    if (this->current == this->head) {
      EXPECT_EQ(this->cursor, -1);
    }
  }

  /// Takes the nodes behind the cursor over, cuts the list, and frees them: what DetachAfterCur leaves to its
  /// caller.
  std::vector<Element> TakeElementsBehindCur() {
    std::vector<ZcListNode<Element>*> nodes;
    for (auto* node = this->current->next; node != this->head; node = node->next) nodes.push_back(node);
    this->DetachAfterCur();
    std::vector<Element> elements;
    for (auto* node : nodes) {
      elements.push_back(node->data);
      this->kind.free(node);
    }
    return elements;
  }

 private:
  void CheckBackLink(const ZcListNode<Element>* node, const ZcListNode<Element>* before) const {
    if constexpr (kLinksBack<List, Element>) {
      EXPECT_EQ(static_cast<const ZcDListNode<Element>*>(node)->previous, before);
    }
  }
  void CheckAnchor(const ZcListNode<Element>* node, std::int32_t index) const {
    if constexpr (kHasAnchors<List, Element>) {
      if (index % this->groupSize != 0) return;
      ASSERT_TRUE(this->anchors.IsValidIndex(index / this->groupSize));
      EXPECT_EQ(this->anchors.GetAt(index / this->groupSize), node);
    }
  }
  void CheckNumberOfAnchors() const {
    if constexpr (kHasAnchors<List, Element>) {
      EXPECT_EQ(this->anchors.GetLength(), (this->length + this->groupSize - 1) / this->groupSize);
    }
  }
};

}  // namespace zwt::test
