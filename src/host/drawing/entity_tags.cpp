#include "host/drawing/entity_tags.h"

#include <algorithm>

namespace zwt {
namespace {

constexpr std::int32_t kCommentCode = 999;
constexpr std::int32_t kFirstDataCode = 1000;
constexpr std::int32_t kApplicationCode = 1001;
constexpr std::int32_t kBraceCode = 1002;

/// A tag and the bytes that it takes in its entity.
struct PlacedTag {
  Tag tag;
  std::size_t begin = 0;
  std::size_t end = 0;
};

std::vector<PlacedTag> PlaceTags(std::string_view bytes) {
  std::vector<PlacedTag> tags;
  TagReader reader(bytes);
  PlacedTag placed;
  while (true) {
    placed.begin = reader.Position();
    if (!reader.Next(placed.tag)) return tags;
    placed.end = reader.Position();
    tags.push_back(placed);
  }
}

/// Number of tags of the entity itself, without the vertices or attributes behind it.
std::size_t OwnCount(const std::vector<PlacedTag>& tags) {
  const auto next =
      std::find_if(tags.begin() + 1, tags.end(), [](const PlacedTag& t) { return t.tag.code == 0; });
  return static_cast<std::size_t>(next - tags.begin());
}

EntityType TypeOf(std::string_view name) {
  if (name == "LINE") return EntityType::Line;
  if (name == "LWPOLYLINE") return EntityType::LwPolyline;
  if (name == "POLYLINE") return EntityType::Polyline;
  if (name == "TEXT") return EntityType::Text;
  return EntityType::Other;
}

bool IsMesh(std::span<const Tag> tags) {
  for (const Tag& tag : tags) {
    std::int64_t flags = 0;
    if (tag.code == 0 && &tag != tags.data()) return false;
    if (tag.code == 70 && ParseInteger(tag.value, flags)) return (flags & (16 | 64)) != 0;
  }
  return false;
}

/// Takes one tag of extended data into the facts; application is that of the last group 1001.
void ReadDataTag(const Tag& tag, std::int32_t index, std::string_view& application, EntityFacts& facts) {
  if (tag.code == kApplicationCode) {
    application = Trimmed(tag.value);
    if (application == kPipeApplication && facts.pipeData < 0) facts.pipeData = index;
  } else if (tag.code == 1005 && application == kAttachApplication && facts.attachedTo == 0) {
    ParseHandle(tag.value, facts.attachedTo);
  }
}

}  // namespace

EntityFacts ReadFacts(std::span<const Tag> tags) {
  EntityFacts facts;
  facts.type = TypeOf(Trimmed(tags[0].value));
  facts.canBePipe = facts.type == EntityType::Line || facts.type == EntityType::LwPolyline ||
                    (facts.type == EntityType::Polyline && !IsMesh(tags));
  std::string_view application;
  bool hasLayer = false;
  for (std::size_t i = 1; i < tags.size() && tags[i].code != 0; ++i) {
    const Tag& tag = tags[i];
    if (tag.code > kFirstDataCode) {
      ReadDataTag(tag, static_cast<std::int32_t>(i), application, facts);
    } else if (tag.code == 5 && !facts.hasHandle && !facts.oddHandle) {
      facts.hasHandle = ParseHandle(tag.value, facts.handle);
      facts.oddHandle = !facts.hasHandle;
    } else if (tag.code == 8 && !hasLayer) {
      facts.layer = Trimmed(tag.value);
      hasLayer = true;
    } else if (tag.code == 67) {
      std::int64_t space = 0;
      facts.inPaperSpace = ParseInteger(tag.value, space) && space == 1;
    }
  }
  return facts;
}

bool HasExtendedData(std::string_view entity, std::string_view application) {
  TagReader reader(entity);
  Tag tag;
  for (bool first = true; reader.Next(tag); first = false) {
    if (tag.code == 0 && !first) return false;
    if (tag.code == kApplicationCode && Trimmed(tag.value) == application) return true;
  }
  return false;
}

std::string_view FirstValue(std::string_view entity, std::int32_t code) {
  TagReader reader(entity);
  Tag tag;
  for (bool first = true; reader.Next(tag); first = false) {
    if (first) continue;
    if (tag.code == 0 || tag.code >= kFirstDataCode) return {};
    if (tag.code == code) return tag.value;
  }
  return {};
}

namespace {

/// Walks over the pairs of a pipe's extended data. Texts inside braces and other groups belong to no pair; a
/// key at the end without a text has an empty one. More data of the same application behind another's counts
/// too.
class PairReader {
 public:
  explicit PairReader(std::string_view data) : reader_(data) {}

  bool Next(std::string_view& key, std::string_view& text) {
    if (!NextText(key)) return false;
    if (!NextText(text)) text = {};
    return true;
  }

 private:
  bool NextText(std::string_view& value) {
    Tag tag;
    while (reader_.Next(tag)) {
      if (tag.code == kCommentCode) continue;
      if (tag.code < kFirstDataCode) return false;
      if (tag.code == kApplicationCode) {
        mine_ = Trimmed(tag.value) == kPipeApplication;
        depth_ = 0;
      } else if (tag.code == kBraceCode) {
        depth_ += Trimmed(tag.value) == "{" ? 1 : -1;
      } else if (tag.code == kFirstDataCode && mine_ && depth_ == 0) {
        value = tag.value;
        return true;
      }
    }
    return false;
  }

  TagReader reader_;
  std::int32_t depth_ = 0;
  bool mine_ = true;
};

bool IsPlainAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c > 0 && c != '\\'; });
}

bool IsKey(std::string_view written, const CString& key, const std::string& keyBytes,
           const TextEncoding& encoding) {
  const std::string_view name = Trimmed(written);
  return name == keyBytes || (!IsPlainAscii(name) && encoding.Decode(name) == key);
}

}  // namespace

bool FindField(std::string_view data, const CString& key, const TextEncoding& encoding,
               std::string_view& value) {
  const std::string keyBytes = encoding.Encode(key);
  PairReader reader(data);
  std::string_view name;
  while (reader.Next(name, value)) {
    if (IsKey(name, key, keyBytes, encoding)) return true;
  }
  return false;
}

std::vector<std::pair<std::string_view, std::string_view>> ListFields(std::string_view data) {
  std::vector<std::pair<std::string_view, std::string_view>> fields;
  PairReader reader(data);
  std::string_view key;
  std::string_view text;
  while (reader.Next(key, text)) fields.emplace_back(key, text);
  return fields;
}

namespace {

std::string PairTags(const FieldList& fields, const Dialect& dialect) {
  TagWriter writer(dialect.lineEnd);
  for (const auto& [key, text] : fields) {
    writer.Text(kFirstDataCode, dialect.encoding.Encode(key));
    writer.Text(kFirstDataCode, dialect.encoding.Encode(text));
  }
  return writer.Take();
}

/// Puts bytes in at a place. A file that ends without a line end gets one in front of them.
std::string Inserted(std::string_view entity, std::size_t place, std::string_view added,
                     const Dialect& dialect) {
  std::string bytes(entity.substr(0, place));
  if (!bytes.empty() && bytes.back() != '\n') bytes += dialect.lineEnd;
  bytes += added;
  bytes += entity.substr(place);
  return bytes;
}

/// Where the pipe's first extended data begins (behind the tag that opens it) and where pairs may be added:
/// at its end; at its begin where a key without a text or an open brace would swallow them. 0 where there is
/// none.
struct DataPlace {
  std::size_t begin = 0;
  std::size_t add = 0;
};

DataPlace FindPipeData(const std::vector<PlacedTag>& tags) {
  DataPlace place;
  std::int32_t depth = 0;
  std::size_t texts = 0;
  for (std::size_t i = 1; i < OwnCount(tags); ++i) {
    const Tag& tag = tags[i].tag;
    if (place.begin == 0) {
      const bool opens = tag.code == kApplicationCode && Trimmed(tag.value) == kPipeApplication;
      if (opens) place.begin = place.add = tags[i].end;
      continue;
    }
    if (tag.code == kCommentCode) continue;
    if (tag.code == kApplicationCode || tag.code < kFirstDataCode) break;
    if (tag.code == kBraceCode) depth += Trimmed(tag.value) == "{" ? 1 : -1;
    if (tag.code == kFirstDataCode && depth == 0) ++texts;
    place.add = tags[i].end;
  }
  if (depth != 0 || texts % 2 != 0) place.add = place.begin;
  return place;
}

/// Behind the last group of the entity itself, comments that follow it left behind.
std::size_t EndOfOwnTags(const std::vector<PlacedTag>& tags) {
  std::size_t last = OwnCount(tags) - 1;
  while (last > 0 && tags[last].tag.code == kCommentCode) --last;
  return tags[last].end;
}

std::string WithField(std::string_view entity, const CString& key, const CString& text,
                      const Dialect& dialect) {
  const std::vector<PlacedTag> tags = PlaceTags(entity);
  const DataPlace place = FindPipeData(tags);
  if (place.begin == 0) {
    TagWriter opening(dialect.lineEnd);
    opening.Text(kApplicationCode, kPipeApplication);
    return Inserted(entity, EndOfOwnTags(tags), opening.Take() + PairTags({{key, text}}, dialect), dialect);
  }
  std::string_view value;
  const bool found =
      FindField(entity.substr(place.begin), key, dialect.encoding, value) && value.data() != nullptr;
  if (!found) return Inserted(entity, place.add, PairTags({{key, text}}, dialect), dialect);
  const auto at = static_cast<std::size_t>(value.data() - entity.data());
  std::string bytes(entity);
  return bytes.replace(at, value.size(), dialect.encoding.Encode(text));
}

}  // namespace

std::string WithFields(std::string_view entity, const FieldList& fields, const Dialect& dialect) {
  std::string bytes(entity);
  for (const auto& [key, text] : fields) bytes = WithField(bytes, key, text, dialect);
  return bytes;
}

namespace {

/// Where a group 8 can stand in an entity that has none: behind its type, handle, owner and first subclass
/// mark.
std::size_t PlaceForLayer(const std::vector<PlacedTag>& tags) {
  std::size_t place = tags[0].end;
  for (std::size_t i = 1; i < OwnCount(tags) && tags[i].tag.code <= 330; ++i) {
    const Tag& tag = tags[i].tag;
    if (tag.code == 5 || tag.code == 330) place = tags[i].end;
    if (tag.code == 100 && Trimmed(tag.value) == "AcDbEntity") return tags[i].end;
  }
  return place;
}

}  // namespace

std::string WithLayer(std::string_view entity, std::string_view layer, const Dialect& dialect) {
  const std::vector<PlacedTag> tags = PlaceTags(entity);
  std::string bytes;
  std::size_t copied = 0;
  bool first = false;
  for (const PlacedTag& placed : tags) {
    if (placed.tag.code != 8) continue;
    const auto at = static_cast<std::size_t>(placed.tag.value.data() - entity.data());
    first = first || at < tags[OwnCount(tags) - 1].end;
    bytes += entity.substr(copied, at - copied);
    bytes += layer;
    copied = at + placed.tag.value.size();
  }
  bytes += entity.substr(copied);
  if (first) return bytes;
  TagWriter group(dialect.lineEnd);
  group.Text(8, layer);
  return Inserted(bytes, PlaceForLayer(tags), group.Take(), dialect);
}

std::string WithLineEnd(std::string_view entity, bool atStart, const AcGePoint3d& point,
                        const Dialect& dialect) {
  const std::int32_t first = atStart ? 10 : 11;
  std::string bytes(entity);
  std::int32_t code = first;
  for (const double value : {point.x, point.y, point.z}) {
    const std::vector<PlacedTag> tags = PlaceTags(bytes);
    const auto own = tags.begin() + static_cast<std::ptrdiff_t>(OwnCount(tags));
    const auto isCode = [code](const PlacedTag& placed) { return placed.tag.code == code; };
    const auto found = std::find_if(tags.begin(), own, isCode);
    if (found != own) {
      const auto at = static_cast<std::size_t>(found->tag.value.data() - bytes.data());
      bytes.replace(at, found->tag.value.size(), RealText(value));
    } else if (value != 0) {
      const auto before = std::find_if(
          tags.begin(), own, [code](const PlacedTag& placed) { return placed.tag.code == code - 10; });
      if (before == own) return std::string(entity);
      TagWriter group(dialect.lineEnd);
      group.Real(code, value);
      bytes = Inserted(bytes, before->end, group.Take(), dialect);
    }
    code += 10;
  }
  return bytes;
}

DataSize MeasureExtendedData(std::string_view entity) {
  DataSize size;
  TagReader reader(entity);
  Tag tag;
  for (bool first = true; reader.Next(tag); first = false) {
    if (tag.code == 0 && !first) break;
    if (tag.code < kFirstDataCode) continue;
    size.total += 3 + tag.value.size();  // two bytes of group code and the zero behind a text
    if (tag.code == kFirstDataCode) size.longest = std::max(size.longest, tag.value.size());
  }
  return size;
}

}  // namespace zwt
