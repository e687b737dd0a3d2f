// What the tests of the containers share: the elements as a vector, read without moving the cursor, and the
// inside of a list's ring.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_dyn_array_base.h"

namespace zwt::test {

template <class T>
std::vector<T> Contents(const ZcDynArrayBase<T>& container) {
  std::vector<T> elements;
  for (const T* element = container.GetFirst(); element != nullptr; element = container.GetNext(element)) {
    elements.push_back(*element);
  }
  return elements;
}

template <class Container, class T>
void Fill(Container& container, std::initializer_list<T> elements) {
  for (const T& element : elements) container.Append(element);
}

}  // namespace zwt::test
