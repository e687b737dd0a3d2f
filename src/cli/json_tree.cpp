// The tree is built from the parser's events, so that every bound holds while reading.
#include "cli/json_tree.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_set>

#include <nlohmann/json.hpp>

namespace zwt {

namespace {

/// One container that is being read.
struct OpenContainer {
  JsonNode node;
  std::string key;  // of the member that is being read
  std::unordered_set<std::string> keys;
};

class TreeBuilder {
 public:
  explicit TreeBuilder(std::string_view bytes) : bytes_(bytes) {}

  JsonNode Take() { return std::move(root_); }

  // The parser's events; a false result would end the parsing, but every problem is thrown.
  bool null() { return Add({}); }
  bool boolean(bool value) { return Add({.kind = JsonNode::Kind::kBoolean, .boolean = value}); }
  bool number_integer(std::int64_t value) { return Add({.kind = JsonNode::Kind::kWhole, .whole = value}); }
  bool number_unsigned(std::uint64_t value) {
    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (value > kMost) return Add({.kind = JsonNode::Kind::kFraction});
    return number_integer(static_cast<std::int64_t>(value));
  }
  bool number_float(double value, const std::string&) {
    constexpr double kExactlyWhole = 9007199254740992;  // 2^53
    const bool whole = value == std::trunc(value) && std::abs(value) < kExactlyWhole;
    return whole ? number_integer(static_cast<std::int64_t>(value))
                 : Add({.kind = JsonNode::Kind::kFraction});
  }
  bool string(std::string& value) { return Add({.kind = JsonNode::Kind::kText, .text = std::move(value)}); }
  bool binary(const nlohmann::json::binary_t&) { return false; }
  bool start_object(std::size_t) { return Open(JsonNode::Kind::kObject); }
  bool start_array(std::size_t) { return Open(JsonNode::Kind::kArray); }
  bool end_object() { return Close(); }
  bool end_array() { return Close(); }
  bool key(std::string& value) {
    OpenContainer& object = open_.back();
    if (!object.keys.insert(value).second)
      throw ScriptError(PointerTo(Here(), value), "the key stands twice");
    object.key = std::move(value);
    return true;
  }
  bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception&);

 private:
  /// Pointer of the innermost open container.
  std::string Here() const {
    std::string pointer;
    for (std::size_t level = 0; level + 1 < open_.size(); ++level)
      pointer = PointerTo(pointer, Step(open_[level]));
    return pointer;
  }
  /// Pointer of the value that is being read.
  std::string Place() const { return open_.empty() ? "" : PointerTo(Here(), Step(open_.back())); }
  static std::string Step(const OpenContainer& container) {
    return container.node.kind == JsonNode::Kind::kObject ? container.key
                                                          : std::to_string(container.node.items.size());
  }

  bool Count() {
    if (++values_ > kMaxJsonValues) throw ScriptError(Place(), "too many values");
    return true;
  }
  bool Add(JsonNode node) {
    Count();
    Put(std::move(node));
    return true;
  }
  void Put(JsonNode node) {
    if (open_.empty()) {
      root_ = std::move(node);
    } else if (JsonNode& parent = open_.back().node; parent.kind == JsonNode::Kind::kObject) {
      parent.members.emplace_back(open_.back().key, std::move(node));
    } else {
      parent.items.push_back(std::move(node));
    }
  }
  bool Open(JsonNode::Kind kind) {
    Count();
    if (open_.size() == kMaxJsonDepth) throw ScriptError(Place(), "nested too deeply");
    OpenContainer container;
    container.node.kind = kind;
    open_.push_back(std::move(container));
    return true;
  }
  bool Close() {
    JsonNode done = std::move(open_.back().node);
    open_.pop_back();
    Put(std::move(done));
    return true;
  }

  std::string_view bytes_;
  JsonNode root_;
  std::vector<OpenContainer> open_;
  std::size_t values_ = 0;
};

bool TreeBuilder::parse_error(std::size_t position, const std::string&, const nlohmann::json::exception&) {
  // position counts the bytes read, the offending one included.
  const std::string_view before = bytes_.substr(0, position == 0 ? 0 : position - 1);
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t lastBreak = before.rfind('\n');
  const std::string_view front = lastBreak == std::string_view::npos ? before : before.substr(lastBreak + 1);
  const auto column =
      1 + std::count_if(front.begin(), front.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;  // not the continuation of a character
      });
  throw ScriptError("",
                    "not JSON (line " + std::to_string(line) + ", column " + std::to_string(column) + ")");
}

}  // namespace

const JsonNode* JsonNode::Find(std::string_view key) const {
  const auto found =
      std::find_if(members.begin(), members.end(), [&](const auto& member) { return member.first == key; });
  return found == members.end() ? nullptr : &found->second;
}

JsonNode ReadJson(std::string_view bytes) {
  if (bytes.size() > kMaxJsonBytes) {
    throw ScriptError("", "larger than " + std::to_string(kMaxJsonBytes >> 20) + " MB");
  }
  TreeBuilder builder(bytes);
  nlohmann::json::sax_parse(bytes.begin(), bytes.end(), &builder);
  return builder.Take();
}

}  // namespace zwt
