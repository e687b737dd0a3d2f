#include "host/editor/result_buffer.h"

#include <string_view>

namespace zwt {

resbuf* MakeBuffer(std::int32_t type, const wchar_t* text) {
  auto buffer = std::make_unique<resbuf>();
  buffer->restype = type;
  buffer->text = text;
  return buffer.release();
}

resbuf* MakeBuffer(std::int32_t type, std::int32_t number) {
  auto buffer = std::make_unique<resbuf>();
  buffer->restype = type;
  buffer->number = number;
  return buffer.release();
}

namespace {

constexpr std::int32_t kKindType = 70;
constexpr std::int32_t kSystemType = 300;
constexpr std::int32_t kRoleType = 301;

bool IsOneOf(std::wstring_view text, std::wstring_view alternatives) {
  while (true) {
    const std::size_t comma = alternatives.find(L',');
    if (text == alternatives.substr(0, comma)) return true;
    if (comma == std::wstring_view::npos) return false;
    alternatives.remove_prefix(comma + 1);
  }
}

bool FieldIsOneOf(const Drawing& drawing, std::int32_t entity, const wchar_t* key, const resbuf& value) {
  CString text;
  drawing.GetField(entity, key, text);
  return IsOneOf(text, value.text);
}

bool Fits(const Drawing& drawing, std::int32_t entity, const resbuf& value) {
  const bool isPipe = drawing.Entity(entity).pipe >= 0;
  switch (value.restype) {
    case RTDXF0:
      return isPipe && IsOneOf(L"ZWT_PIPE", value.text);
    case kKindType:
      return isPipe && drawing.Kind(entity) == value.number;
    case kSystemType:
      return isPipe && FieldIsOneOf(drawing, entity, L"WtSystem", value);
    case kRoleType:
      return isPipe && FieldIsOneOf(drawing, entity, L"ELS_TYPE", value);
    default:
      return false;
  }
}

}  // namespace

bool PassesFilter(const Drawing& drawing, std::int32_t entity, const resbuf* filter) {
  const EntityRecord& record = drawing.Entity(entity);
  if (!record.alive || record.inPaperSpace) return false;
  for (; filter != nullptr; filter = filter->rbnext) {
    if (!Fits(drawing, entity, *filter)) return false;
  }
  return true;
}

}  // namespace zwt

void acutRelRb(resbuf* list) {
  while (list != nullptr) {
    const std::unique_ptr<resbuf> first(list);
    list = first->rbnext;
  }
}
