// JSON for reading eyes and line-by-line comparison: what fits stands on one line, the rest is broken by
// members.
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

namespace zwt {

/// The value as text, without a line feed at its end. Bytes that are not UTF-8 become U+FFFD.
std::string LayOutJson(const nlohmann::ordered_json& value);

/// A number as JSON: whole where it is whole ("150", not "150.0"), null where it is not finite.
nlohmann::ordered_json JsonNumber(double value);

}  // namespace zwt
