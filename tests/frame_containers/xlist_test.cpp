// The list with anchors: where they stand after each change, and that indexing uses them.
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "frame/containers/zc_list.h"
#include "frame/containers/zc_xlist.h"
#include "probe.h"

namespace {

using zwt::test::Contents;
using Ints = std::vector<int>;

/// CheckRing holds each anchor against the node at index k * groupSize.
class XList : public zwt::test::ListProbe<ZcXList<int>, int> {
 public:
  explicit XList(int count = 0, int group = 4) : ListProbe<ZcXList<int>, int>(0, group, 2) {
    for (int value = 0; value < count; ++value) Append(value);
  }
  int AnchorCount() const { return anchors.GetLength(); }
};

TEST(XList, AnchorsAreCompleteAtConstructionWithACount) {
  const zwt::test::ListProbe<ZcXList<int>, int> list(10, 4, 2);
  list.CheckRing();
  EXPECT_EQ(list.GetLength(), 10);
  EXPECT_EQ(list.GetCur(), -1);
}

TEST(XList, InsertionAtTheFrontKeepsEveryAnchorAtItsIndex) {
  XList list(9);
  for (int value = -1; value >= -20; --value) {
    list.InsertHead(value);
    list.CheckRing();
  }
  EXPECT_EQ(list.AnchorCount(), 8);
  EXPECT_EQ(list.GetAt(16), -4);
}

TEST(XList, InsertionAtEveryIndexKeepsTheAnchors) {
  for (int index = 0; index <= 12; ++index) {
    XList list(12);
    list.Insert(index, 99);
    list.CheckRing();
    EXPECT_EQ(list.GetAt(index), 99);
  }
}

TEST(XList, DeletionAtEveryIndexKeepsTheAnchors) {
  for (int length = 1; length <= 13; ++length) {
    for (int index = 0; index < length; ++index) {
      XList list(length);
      list.Del(index);
      list.CheckRing();
      EXPECT_EQ(list.GetLength(), length - 1);
    }
  }
}

TEST(XList, GroupsOfOneNodeAnchorEveryNode) {
  XList list(5, 1);
  list.InsertHead(-1);
  list.Del(2);
  list.CheckRing();
  EXPECT_EQ(list.AnchorCount(), 5);
}

TEST(XList, GroupSizeBelowOneCountsAsOne) {
  XList list(3, 0);
  list.CheckRing();
  EXPECT_EQ(list.AnchorCount(), 3);
}

TEST(XList, MoveToReachesEveryIndexFromEveryCursor) {
  XList list(14);
  for (int from = -1; from < 14; ++from) {
    for (int to = 0; to < 14; ++to) {
      list.MoveTo(from);
      list.MoveTo(to);
      ASSERT_EQ(list.GetCurData(), to);
      ASSERT_EQ(list.GetCur(), to);
    }
  }
}

TEST(XList, TurningAndReversingRebuildTheAnchors) {
  XList list(11);
  list.Rotate(5, 0);
  list.CheckRing();
  list.MoveTo(3);
  list.ReverseList();
  list.CheckRing();
  EXPECT_EQ(Contents<int>(list), (Ints{4, 3, 2, 1, 0, 10, 9, 8, 7, 6, 5}));
}

TEST(XList, InsertionAndDeletionBetweenReverseListAndTheNextMoveKeepTheAnchors) {
  XList list(11);
  list.MoveTo(3);
  list.ReverseList();
  list.InsertAfterCur(99);
  list.CheckRing();
  list.MoveTo(9);
  list.ReverseList();
  list.DelCur();
  list.CheckRing();
  EXPECT_EQ(list.GetLength(), 11);
}

TEST(XList, SortingRebuildsTheAnchors) {
  XList list(11);
  list.Sort(false);
  list.CheckRing();
  EXPECT_EQ(list.GetAt(0), 10);
}

TEST(XList, ConbineAnchorsWhatCameFromOtherLists) {
  XList list(6);
  XList other(9);
  ZcList<int> single(3);
  list.Conbine(other, 2);
  list.Conbine(single, 0);
  list.CheckRing();
  other.CheckRing();
  EXPECT_EQ(list.GetLength(), 16);
  EXPECT_EQ(other.GetLength(), 2);
}

TEST(XList, DetachAfterCurShortensTheAnchors) {
  XList list(10);
  list.MoveTo(4);
  EXPECT_EQ(list.TakeElementsBehindCur().size(), 5U);
  list.CheckRing();
  EXPECT_EQ(list.AnchorCount(), 2);
}

TEST(XList, ResetClearsTheAnchors) {
  XList list(10);
  list.Reset();
  list.CheckRing();
  EXPECT_EQ(list.AnchorCount(), 0);
  list.Append(1);
  list.CheckRing();
}

TEST(XList, ACopyHasAnchorsOfItsOwn) {
  const XList list(10);
  const XList copy(list);
  copy.CheckRing();
  EXPECT_TRUE(copy == list);
}

}  // namespace
