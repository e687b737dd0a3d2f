// Element for the tests: counts how many of it are alive, and carries a mark beside the key that `<` orders
// by, so that a test sees whether equal keys kept their order.
#pragma once

#include <stdexcept>

namespace zwt::test {

class Counted {
 public:
  static constexpr int kMarks = 8;

  Counted() { ++alive; }
  explicit Counted(int fullValue) : value(fullValue) { ++alive; }
  Counted(const Counted& other) : value(other.value) {
    CountDownToFailure();
    ++alive;
  }
  Counted& operator=(const Counted& other) {
    CountDownToFailure();
    value = other.value;
    return *this;
  }
  virtual ~Counted() { --alive; }

  int Key() const { return value / kMarks; }
  bool operator==(const Counted& other) const { return value == other.value; }
  bool operator<(const Counted& other) const { return Key() < other.Key(); }

  /// From now on the copy of that number throws; negative for never.
  static void FailAtCopy(int number) { copiesLeft = number; }

  int value = 0;
  static inline int alive = 0;

 private:
  static void CountDownToFailure() {
    if (copiesLeft >= 0 && copiesLeft-- == 0) throw std::runtime_error("copy");
  }

  static inline int copiesLeft = -1;
};

}  // namespace zwt::test
