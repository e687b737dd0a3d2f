// The reference that the random tests hold the containers against: a vector of slots with a cursor, moved by
// the rules of the cursor table. A slot is a number, or nothing where a pointer container has an empty slot.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "counted.h"

namespace zwt::test {

enum class Kind { kArray, kSingleList, kDoubleList };

class ContainerModel {
 public:
  using Slot = std::optional<int>;

  ContainerModel(Kind containerKind, Slot defaultSlot) : kind(containerKind), empty(defaultSlot) {}

  std::vector<Slot> slots;
  int cursor = -1;
  /// Index of the element that the cursor really stands on; differs from the cursor only after Reverse of a
  /// list.
  int place = -1;

  int Length() const { return static_cast<int>(slots.size()); }
  bool IsList() const { return kind != Kind::kArray; }
  bool IsValid(int index) const { return index >= 0 && index < Length(); }
  bool IsOut() const { return !IsValid(cursor); }
  bool HasElement() const { return IsValid(place); }
  Slot& Current() { return At(place); }
  Slot& At(int index) { return slots[static_cast<std::size_t>(index)]; }

  void StandOn(int index) { cursor = place = IsList() && !IsValid(index) ? -1 : index; }
  void First() { StandOn(0); }
  void Last() { StandOn(Length() - 1); }
  void Next() {
    Step(1);
    if (IsList() && place == Length()) cursor = place = -1;
  }
  void Previous() {
    if (kind == Kind::kSingleList && place != -1) {
      StandOn(cursor - 1);
    } else if (IsList() && place == -1) {
      Last();
    } else {
      Step(-1);
      if (IsList() && place == -1) cursor = -1;
    }
  }

  void InsertBehind(Slot slot) {
    slots.insert(slots.begin() + (place + 1), slot);
    Step(1);
  }
  void InsertHere(Slot slot) {
    if (IsList()) {
      Previous();
      InsertBehind(slot);
    } else {
      StandOn(std::clamp(cursor, 0, Length()));
      slots.insert(slots.begin() + cursor, slot);
    }
  }
  void Insert(int index, Slot slot) {
    StandOn(IsList() ? index - 1 : index);
    IsList() ? InsertBehind(slot) : InsertHere(slot);
  }
  int Append(Slot slot) {
    slots.push_back(slot);
    Last();
    return cursor;
  }
  void Delete() {
    if (!HasElement()) return;
    slots.erase(slots.begin() + place);
    Step(-1);
    if (IsList() && place == -1) cursor = -1;
  }

  /// Growth keeps the cursor; only an array shrinks.
  void ReAllocate(int length) {
    if (length > Length() || !IsList()) slots.resize(static_cast<std::size_t>(std::max(length, 0)), empty);
  }
  void SetLength(int length, bool contentsStay) {
    if (!IsList()) {
      if (!contentsStay) slots.clear();
      slots.resize(static_cast<std::size_t>(length), empty);
    } else if (length >= Length()) {
      ReAllocate(length);
    } else {
      slots.resize(static_cast<std::size_t>(length));
      Last();
    }
  }

  int Find(Slot slot, int first, int last) const {
    if (!IsValid(last)) last = Length() - 1;
    for (int index = first; index <= last; ++index) {
      if (slots[static_cast<std::size_t>(index)] == slot) return index;
    }
    return -1;
  }
  bool FindTo(Slot slot, int start) {
    const int found = IsValid(start) ? Find(slot, start, -1) : -1;
    StandOn(found >= 0 ? found : IsList() ? -1 : std::max(start, Length()));
    return found >= 0;
  }

  /// Nothing goes behind everything.
  static bool Below(const Slot& left, const Slot& right) {
    return left && (!right || *left / Counted::kMarks < *right / Counted::kMarks);
  }
  /// By halving from the middle; the place where the slot belongs is given back in any case.
  bool Bisect(const Slot& slot, int& found) const {
    int low = 0;
    int high = Length() - 1;
    while (low <= high) {
      found = (low + high) / 2;
      const Slot& middle = slots[static_cast<std::size_t>(found)];
      if (!Below(slot, middle) && !Below(middle, slot)) return true;
      Below(slot, middle) ? high = found - 1 : low = found + 1;
    }
    found = low;
    return false;
  }

  void Sort(bool ascending) {
    std::stable_sort(slots.begin(), slots.end(), [ascending](const Slot& left, const Slot& right) {
      if (!left || !right) return left.has_value() && !right.has_value();
      return ascending ? Below(left, right) : Below(right, left);
    });
    StandOn(cursor);
  }
  void ReverseLinks() {
    if (Length() < 2) return;
    std::reverse(slots.begin(), slots.end());
    if (place >= 0) place = Length() - 1 - place;
  }
  void Rotate(int a, int b) {
    if (a == b) return;
    const int first = (a - b + Length()) % Length();
    std::rotate(slots.begin(), slots.begin() + first, slots.end());
    First();
  }
  bool Move(int from, int to) {
    if (from == to || from == to - 1) return false;
    const Slot moved = At(from);
    slots.erase(slots.begin() + from);
    const int target = from < to ? to - 1 : to;
    slots.insert(slots.begin() + target, moved);
    StandOn(target);
    return true;
  }

 private:
  void Step(int by) {
    cursor += by;
    place += by;
  }

  Kind kind;
  Slot empty;
};

}  // namespace zwt::test
