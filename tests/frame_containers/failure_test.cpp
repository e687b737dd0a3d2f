// Copies of elements that throw: every container keeps its order, its ring and its count of elements, and
// frees all.
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "counted.h"
#include "frame/containers/zc_dyn_array.h"
#include "frame/containers/zc_xlist.h"
#include "probe.h"

namespace {

using zwt::test::Contents;
using zwt::test::Counted;

template <class Container>
class ThrowingCopies : public testing::Test {
 protected:
  ~ThrowingCopies() override { Counted::FailAtCopy(-1); }

  static std::vector<int> Values(const Container& container) {
    std::vector<int> values;
    for (const Counted* element = container.GetFirst(); element != nullptr;
         element = container.GetNext(element)) {
      values.push_back(element->value);
    }
    return values;
  }
  static void CheckInside(const Container& container) {
    if constexpr (!std::is_same_v<Container, ZcDynArray<Counted>>) container.CheckRing();
  }
  static void Fill(Container& container) {
    for (const int value : {30, 10, 20}) container.Append(Counted(value));
  }

  /// Runs an action with each copy in turn failing, until it gets through; each time on a fresh container.
  template <class Action>
  static void FailAtEveryCopy(Action action) {
    bool threw = true;
    for (int copy = 0; threw; ++copy) {
      threw = false;
      {
        Container container;
        Fill(container);
        Counted::FailAtCopy(copy);
        try {
          action(container);
        } catch (const std::runtime_error&) {
          threw = true;
        }
        Counted::FailAtCopy(-1);
        CheckInside(container);
        EXPECT_EQ(static_cast<int>(Values(container).size()), container.GetLength());
      }
      EXPECT_EQ(Counted::alive, 0) << "copy " << copy;
    }
  }
};
using Kinds = testing::Types<ZcDynArray<Counted>, zwt::test::ListProbe<ZcList<Counted>, Counted>,
                             zwt::test::ListProbe<ZcDList<Counted>, Counted>,
                             zwt::test::ListProbe<ZcXList<Counted>, Counted>>;
TYPED_TEST_SUITE(ThrowingCopies, Kinds);

TYPED_TEST(ThrowingCopies, AppendLeavesTheContentsAlone) {
  TypeParam container;
  this->Fill(container);
  const Counted added(40);
  Counted::FailAtCopy(0);
  EXPECT_THROW(container.Append(added), std::runtime_error);
  EXPECT_EQ(this->Values(container), (std::vector<int>{30, 10, 20}));
  this->CheckInside(container);
}

TYPED_TEST(ThrowingCopies, InsertionNeverLeaks) {
  this->FailAtEveryCopy([](TypeParam& container) {
    container.InsertHead(Counted(1));
    container.Append(Counted(2));
  });
}

TYPED_TEST(ThrowingCopies, SortNeverLosesAnElementOfAList) {
  this->FailAtEveryCopy([](TypeParam& container) { container.Sort(true); });
}

TYPED_TEST(ThrowingCopies, GrowthNeverLeaks) {
  this->FailAtEveryCopy([](TypeParam& container) { container.IncreaseSize(20); });
}

TYPED_TEST(ThrowingCopies, CopyNeverLeaks) {
  this->FailAtEveryCopy([](TypeParam& container) {
    const TypeParam copy(container);
    TypeParam assigned;
    assigned = copy;
  });
}

TYPED_TEST(ThrowingCopies, MoveNeverLeaks) {
  this->FailAtEveryCopy([](TypeParam& container) { container.Move(2, 0); });
}

TEST(ThrowingCopiesBetweenKinds, ConbineThatFailsChangesNeitherList) {
  for (int copy = 0; copy < 3; ++copy) {
    zwt::test::ListProbe<ZcDList<Counted>, Counted> target;
    zwt::test::ListProbe<ZcList<Counted>, Counted> source;
    target.Append(Counted(1));
    for (const int value : {2, 3, 4}) source.Append(Counted(value));
    Counted::FailAtCopy(copy + 1);
    EXPECT_THROW(target.Conbine(source, 0), std::runtime_error);
    Counted::FailAtCopy(-1);
    EXPECT_EQ(target.GetLength(), 1);
    EXPECT_EQ(source.GetLength(), 3);
    target.CheckRing();
    source.CheckRing();
  }
  EXPECT_EQ(Counted::alive, 0);
}

}  // namespace
