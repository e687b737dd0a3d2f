// Ordered set for membership tests: a binary search tree that rebalances itself on insertion. Heights are not
// stored but counted by recursion, which the balance keeps shallow. Nothing is ever taken out but the whole
// tree.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

/// One node; the tree that made it owns it.
template <class T>
class ZcBTree {
 public:
  explicit ZcBTree(const T& nodeKey) : key(nodeKey) {}
  ZcBTree(const ZcBTree&) = delete;
  ZcBTree& operator=(const ZcBTree&) = delete;
  virtual ~ZcBTree() = default;

  ZcBTree* left = nullptr;
  ZcBTree* right = nullptr;
  ZcBTree* parent = nullptr;
  T key;
};

template <class T>
class ZcBFindTree {
 public:
  using Node = ZcBTree<T>;

  ZcBFindTree() = default;
  ZcBFindTree(const ZcBFindTree&) = delete;
  ZcBFindTree& operator=(const ZcBFindTree&) = delete;
  /// Without recursion: takes leaf after leaf, climbing by the links to the parents.
  virtual ~ZcBFindTree() {
    Node* node = root;
    while (node != nullptr) {
      Node*& child = node->left != nullptr ? node->left : node->right;
      if (child != nullptr) {
        node = std::exchange(child, nullptr);
      } else {
        Node* const parent = node->parent;
        delete node;
        node = parent;
      }
    }
  }

  /// Adds a key, ordered by `<`. True if it was new; `node` is the node that holds it in either case.
  bool Insert(const T& key, Node*& node) {
    Node* parent = nullptr;
    Node** link = &root;
    while (*link != nullptr) {
      parent = *link;
      if (key < parent->key) {
        link = &parent->left;
      } else if (parent->key < key) {
        link = &parent->right;
      } else {
        node = parent;
        return false;
      }
    }
    node = new Node(key);
    node->parent = parent;
    *link = node;
    if (parent != nullptr && SiblingOf(node) == nullptr) RestoreBalance(node);
    return true;
  }
  bool Insert(const T& key) {
    Node* node = nullptr;
    return Insert(key, node);
  }

  /// Null when the tree is empty.
  const Node* GetRoot() const { return root; }

  /// Levels of a subtree, 0 for none: counted each time, at the cost of a visit to every node below.
  static std::int32_t HeightOf(const Node* node) {
    return node == nullptr ? 0 : 1 + std::max(HeightOf(node->left), HeightOf(node->right));
  }

 private:
  static Node* SiblingOf(const Node* node) {
    return node == node->parent->left ? node->parent->right : node->parent->left;
  }

  /// Climbs from a new leaf whose parent has grown a level, until a parent has not grown or is out of
  /// balance.
  void RestoreBalance(Node* leaf) {
    Node* below = leaf;
    Node* current = leaf->parent;
    for (std::int32_t height = 2; current->parent != nullptr; ++height) {
      const std::int32_t excess = height - HeightOf(SiblingOf(current));
      if (excess > 1) return Rebalance(current->parent, current, below);
      if (excess != 1) return;
      below = current;
      current = current->parent;
    }
  }

  /// `child` and `grandchild` are the way down from the node that is out of balance.
  void Rebalance(Node* top, Node* child, Node* grandchild) {
    const bool childIsLeft = child == top->left;
    const bool grandchildIsLeft = grandchild == child->left;
    if (childIsLeft != grandchildIsLeft) Raise(grandchild);
    Raise(childIsLeft == grandchildIsLeft ? child : grandchild);
  }

  /// Rotates a node into the place of its parent, which becomes its child on the other side.
  void Raise(Node* node) {
    Node* const top = node->parent;
    Node* const above = top->parent;
    const bool wasLeft = node == top->left;
    Node*& inner = wasLeft ? node->right : node->left;
    (wasLeft ? top->left : top->right) = inner;
    if (inner != nullptr) inner->parent = top;
    inner = top;
    top->parent = node;
    node->parent = above;
    if (above == nullptr) {
      root = node;
    } else {
      (top == above->left ? above->left : above->right) = node;
    }
  }

  Node* root = nullptr;
};
