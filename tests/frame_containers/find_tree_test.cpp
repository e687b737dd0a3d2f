// The ordered set: membership, and the shape that the rebalancing leaves, by small cases and by random ones.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/containers/zc_find_tree.h"

namespace {

using Tree = ZcBFindTree<int>;
using Node = ZcBTree<int>;

/// Keys in order below a node, checking the links to the parents and that two siblings differ by one level at
/// most.
int CheckSubtree(const Node* node, const Node* parent, std::vector<int>& keys) {
  if (node == nullptr) return 0;
  EXPECT_EQ(node->parent, parent);
  const int left = CheckSubtree(node->left, node, keys);
  keys.push_back(node->key);
  const int right = CheckSubtree(node->right, node, keys);
  EXPECT_LE(std::abs(left - right), 1) << "at key " << node->key;
  return 1 + std::max(left, right);
}

std::vector<int> CheckedKeys(const Tree& tree) {
  std::vector<int> keys;
  CheckSubtree(tree.GetRoot(), nullptr, keys);
  return keys;
}

std::vector<int> InsertAll(Tree& tree, const std::vector<int>& keys) {
  for (const int key : keys) EXPECT_TRUE(tree.Insert(key));
  return CheckedKeys(tree);
}

TEST(FindTree, IsEmptyAtConstruction) {
  const Tree tree;
  EXPECT_EQ(tree.GetRoot(), nullptr);
  EXPECT_EQ(Tree::HeightOf(tree.GetRoot()), 0);
}

TEST(FindTree, InsertingAKeyTwiceGivesTrueThenFalseAndKeepsTheSize) {
  Tree tree;
  Node* first = nullptr;
  Node* second = nullptr;
  EXPECT_TRUE(tree.Insert(4, first));
  EXPECT_FALSE(tree.Insert(4, second));
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first, second);
  EXPECT_EQ(first->key, 4);
  EXPECT_EQ(CheckedKeys(tree), (std::vector<int>{4}));
}

TEST(FindTree, OneTwoThreeLeavesTwoAtTheRoot) {
  Tree tree;
  EXPECT_EQ(InsertAll(tree, {1, 2, 3}), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(tree.GetRoot()->key, 2);
  EXPECT_EQ(tree.GetRoot()->left->key, 1);
  EXPECT_EQ(tree.GetRoot()->right->key, 3);
}

TEST(FindTree, EveryOrderOfThreeKeysLeavesTheMiddleAtTheRoot) {
  std::vector<int> keys{1, 2, 3};
  do {
    Tree tree;
    InsertAll(tree, keys);
    EXPECT_EQ(tree.GetRoot()->key, 2) << keys[0] << keys[1] << keys[2];
  } while (std::next_permutation(keys.begin(), keys.end()));
}

TEST(FindTree, RotationBelowTheRootHangsTheSubtreeInTheOldPlace) {
  Tree tree;
  InsertAll(tree, {10, 5, 20, 30, 40});
  EXPECT_EQ(tree.GetRoot()->key, 10);
  EXPECT_EQ(tree.GetRoot()->right->key, 30);
  EXPECT_EQ(tree.GetRoot()->right->left->key, 20);
  EXPECT_EQ(tree.GetRoot()->right->right->key, 40);
}

TEST(FindTree, DoubleRotationWithSubtreesKeepsTheOrder) {
  Tree tree;
  EXPECT_EQ(InsertAll(tree, {50, 20, 60, 10, 30, 70, 5, 25, 40, 35}),
            (std::vector<int>{5, 10, 20, 25, 30, 35, 40, 50, 60, 70}));
}

TEST(FindTree, EveryOrderOfSevenKeysStaysInOrderAndBalance) {
  std::vector<int> keys(7);
  std::iota(keys.begin(), keys.end(), 0);
  do {
    Tree tree;
    EXPECT_EQ(InsertAll(tree, keys).size(), 7U);
  } while (std::next_permutation(keys.begin(), keys.end()));
}

TEST(FindTree, SortedKeysOfAFullTreeLeaveAFullTree) {
  Tree tree;
  std::vector<int> keys(1023);
  std::iota(keys.begin(), keys.end(), 0);
  InsertAll(tree, keys);
  EXPECT_EQ(Tree::HeightOf(tree.GetRoot()), 10);
  EXPECT_EQ(tree.GetRoot()->key, 511);
}

TEST(FindTree, RandomKeysAgreeWithAnOrderedSet) {
  std::mt19937 random(20240613);
  for (const int range : {10, 300, 100000}) {
    std::uniform_int_distribution<int> key(0, range);
    Tree tree;
    std::set<int> model;
    for (int step = 0; step < 20000; ++step) {
      const int value = key(random);
      Node* node = nullptr;
      ASSERT_EQ(tree.Insert(value, node), model.insert(value).second);
      ASSERT_EQ(node->key, value);
      if (step % 500 == 0) {
        ASSERT_EQ(CheckedKeys(tree), std::vector<int>(model.begin(), model.end()));
      }
    }
    EXPECT_EQ(CheckedKeys(tree), std::vector<int>(model.begin(), model.end()));
  }
}

TEST(FindTree, HoldsWideStrings) {
  ZcBFindTree<std::wstring> tree;
  EXPECT_TRUE(tree.Insert(L"2-1"));
  EXPECT_TRUE(tree.Insert(L"10-2"));
  EXPECT_FALSE(tree.Insert(L"2-1"));
}

TEST(FindTree, AMillionKeysAreFreedWithoutDeepRecursion) {
  Tree tree;
  for (int key = 0; key < 1000000; ++key) ASSERT_TRUE(tree.Insert(key));
  EXPECT_EQ(Tree::HeightOf(tree.GetRoot()), 20);
}

struct Counted {
  explicit Counted(int keyValue) : value(keyValue) { ++alive; }
  Counted(const Counted& other) : value(other.value) { ++alive; }
  Counted& operator=(const Counted&) = default;
  ~Counted() { --alive; }
  bool operator<(const Counted& other) const { return value < other.value; }

  int value;
  static inline int alive = 0;
};

TEST(FindTree, DestructionFreesEveryKey) {
  {
    ZcBFindTree<Counted> tree;
    for (int key = 0; key < 1000; ++key) tree.Insert(Counted(key * 7919 % 1000));
    EXPECT_EQ(Counted::alive, 1000);
  }
  EXPECT_EQ(Counted::alive, 0);
}

}  // namespace
