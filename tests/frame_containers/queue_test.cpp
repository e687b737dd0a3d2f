// The queue on a list: order, capacity, and the reading of both ends.
#include <string>

#include <gtest/gtest.h>

#include "frame/containers/zc_queue.h"

namespace {

TEST(Queue, PopsInTheOrderOfPushing) {
  ZcListQuene<int> queue;
  for (int value = 1; value <= 3; ++value) EXPECT_TRUE(queue.Push(value));
  int out = 0;
  for (int value = 1; value <= 3; ++value) {
    ASSERT_TRUE(queue.Pop(out));
    EXPECT_EQ(out, value);
  }
  EXPECT_EQ(queue.GetLength(), 0);
}

TEST(Queue, PeekAndPopOnEmptyGiveFalseAndLeaveTheOutputAlone) {
  ZcListQuene<int> queue;
  int out = 7;
  EXPECT_FALSE(queue.PeekHead(out));
  EXPECT_FALSE(queue.PeekTail(out));
  EXPECT_FALSE(queue.Pop(out));
  EXPECT_EQ(out, 7);
}

TEST(Queue, PeeksCopyTheEndsAndKeepThem) {
  ZcListQuene<std::wstring> queue;
  queue.Push(L"给水");
  queue.Push(L"排水");
  std::wstring out;
  ASSERT_TRUE(queue.PeekHead(out));
  EXPECT_EQ(out, L"给水");
  ASSERT_TRUE(queue.PeekTail(out));
  EXPECT_EQ(out, L"排水");
  EXPECT_EQ(queue.GetLength(), 2);
}

TEST(Queue, PushIsRefusedOnceTheLengthHasReachedTheCapacity) {
  ZcListQuene<int> queue(2);
  EXPECT_TRUE(queue.Push(1));
  EXPECT_TRUE(queue.Push(2));
  EXPECT_FALSE(queue.Push(3));
  int out = 0;
  ASSERT_TRUE(queue.Pop(out));
  EXPECT_TRUE(queue.Push(4));
  ASSERT_TRUE(queue.PeekTail(out));
  EXPECT_EQ(out, 4);
}

TEST(Queue, CapacityZeroTakesNothingAndANegativeOneHasNoLimit) {
  ZcListQuene<int> closed(0);
  EXPECT_FALSE(closed.Push(1));
  ZcListQuene<int> open(-5);
  for (int value = 0; value < 1000; ++value) ASSERT_TRUE(open.Push(value));
  EXPECT_EQ(open.GetLength(), 1000);
}

TEST(Queue, GetAtIsWritableAndExtendsBehindTheTail) {
  ZcListQuene<int> queue;
  queue.Push(1);
  queue.GetAt(0) = 5;
  EXPECT_EQ(queue.GetAt(2), 0);
  EXPECT_EQ(queue.GetLength(), 3);
  int out = 0;
  ASSERT_TRUE(queue.PeekHead(out));
  EXPECT_EQ(out, 5);
}

TEST(Queue, ResetEmpties) {
  ZcListQuene<int> queue;
  queue.Push(1);
  queue.Reset();
  EXPECT_EQ(queue.GetLength(), 0);
  EXPECT_TRUE(queue.Push(2));
}

TEST(Queue, ServesThroughItsAbstractBase) {
  ZcListQuene<int> list;
  ZcQuene<int>& queue = list;
  queue.Push(3);
  int out = 0;
  EXPECT_TRUE(queue.Pop(out));
  EXPECT_EQ(out, 3);
}

}  // namespace
