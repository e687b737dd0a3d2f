// A value is tried on one line first, then member by member.
#include "cli/json_layout.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include <nlohmann/json.hpp>

#include "cli/text_table.h"
#include "host/text/wide_text.h"

namespace zwt {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kLineWidth = 120;  // terminal columns

void Append(std::string& out, const Json& value, std::size_t indent);

std::string OnOneLine(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// Like OnOneLine, with the blanks that readers expect: [1, 2] and {"a": 1}.
void AppendSpaced(std::string& out, const Json& value) {
  if (!value.is_structured()) {
    out += OnOneLine(value);
    return;
  }
  out += value.is_object() ? '{' : '[';
  bool first = true;
  for (const auto& item : value.items()) {
    if (!first) out += ", ";
    first = false;
    if (value.is_object()) out += OnOneLine(item.key()) + ": ";
    AppendSpaced(out, item.value());
  }
  out += value.is_object() ? '}' : ']';
}

void AppendBroken(std::string& out, const Json& value, std::size_t indent) {
  const std::string margin(indent + 2, ' ');
  out += value.is_object() ? '{' : '[';
  bool first = true;
  for (const auto& item : value.items()) {
    out += first ? "\n" : ",\n";
    first = false;
    out += margin;
    if (value.is_object()) out += OnOneLine(item.key()) + ": ";
    Append(out, item.value(), indent + 2);
  }
  out += '\n' + std::string(indent, ' ') + (value.is_object() ? '}' : ']');
}

void Append(std::string& out, const Json& value, std::size_t indent) {
  std::string line;
  AppendSpaced(line, value);
  if (!value.is_structured() || value.empty() || indent + DisplayWidth(WideFromUtf8(line)) <= kLineWidth) {
    out += line;
  } else {
    AppendBroken(out, value, indent);
  }
}

}  // namespace

std::string LayOutJson(const Json& value) {
  std::string out;
  Append(out, value, 0);
  return out;
}

Json JsonNumber(double value) {
  constexpr double kExactlyWhole = 9007199254740992;  // 2^53
  if (!std::isfinite(value)) return nullptr;
  if (value == std::trunc(value) && std::abs(value) < kExactlyWhole) return static_cast<std::int64_t>(value);
  return value;
}

}  // namespace zwt
