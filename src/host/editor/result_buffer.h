// Result buffers: the lists of typed values in which the platform takes selection filters, and what a filter
// means.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "host/drawing/drawing.h"
#include "host/text/wide_text.h"

/// Result types of a filter.
constexpr std::int32_t RTDXF0 = 5020;  // class of the entity
constexpr std::int32_t RTNORM = 5100;  // the user answered
constexpr std::int32_t RTNONE = 5000;  // the user gave an empty answer
constexpr std::int32_t RTERROR = -5001;
constexpr std::int32_t RTCAN = -5002;  // the user cancelled

/// One value of a list; the list owns what follows.
struct resbuf {
  resbuf* rbnext = nullptr;
  std::int32_t restype = 0;
  CString text;             // of types that hold a text
  std::int32_t number = 0;  // of types that hold a whole number

  resbuf() = default;
  resbuf(const resbuf&) = delete;
  resbuf& operator=(const resbuf&) = delete;
};

namespace zwt {

resbuf* MakeBuffer(std::int32_t type, const wchar_t* text);
resbuf* MakeBuffer(std::int32_t type, std::int32_t number);

/// End of the list.
inline resbuf* BuildList(std::int32_t end) {
  static_cast<void>(end);
  return nullptr;
}

template <class Value, class... Rest>
resbuf* BuildList(std::int32_t type, Value value, Rest... rest) {
  static_assert(sizeof...(rest) % 2 == 1, "a list is pairs of type and value, and a 0 at its end");
  resbuf* head = MakeBuffer(type, value);
  head->rbnext = BuildList(rest...);
  return head;
}

/// Whether an entity passes a filter: each value must fit. Type 5020 is the class (ZWT_PIPE), 70 the kind,
/// 300 the system, 301 the role; a comma in a text separates alternatives. What has another type fits
/// nothing; an empty filter (null) passes every living entity of model space.
bool PassesFilter(const Drawing& drawing, std::int32_t entity, const resbuf* filter);

}  // namespace zwt

/// Builds a list of pairs (type, value), ended by 0. Release it with acutRelRb.
template <class... Values>
resbuf* acutBuildList(std::int32_t type, Values... values) {
  return zwt::BuildList(type, values...);
}

void acutRelRb(resbuf* list);
