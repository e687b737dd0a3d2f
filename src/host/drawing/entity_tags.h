// What the model reads out of the tags of one entity, and how it changes them: handle, layer, extended data
// of pipes and attachments. The tags stay the one place where an entity lives.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/drawing/geometry.h"
#include "host/drawing/tags.h"
#include "host/drawing/text_encoding.h"
#include "host/text/wide_text.h"

namespace zwt {

constexpr std::string_view kPipeApplication = "ZWT_PIPE";
constexpr std::string_view kAttachApplication = "ZWT_ATTACH";
constexpr std::string_view kDiameterApplication = "ZWT_DIAMETER_DIM";

/// Longest text of extended data, and most of it on one entity, in bytes of the file.
constexpr std::size_t kLongestDataText = 255;
constexpr std::size_t kMostExtendedData = 16384;

/// First version with subclass marks and owners, and first version in UTF-8, by the number behind "AC".
constexpr std::int32_t kVersionWithOwners = 1012;
constexpr std::int32_t kVersionWithUtf8 = 1021;
constexpr std::int32_t kOldestVersion = 1009;
constexpr std::int32_t kNewestVersion = 1032;

/// How the file of a drawing is written.
struct Dialect {
  std::int32_t version = kVersionWithUtf8;  // 1009 is R12, 1032 R2018
  TextEncoding encoding;
  std::string lineEnd = "\n";
  std::uint64_t modelSpace = 0;  // handle of model space's block record, 0 where there is none

  bool HasOwners() const { return version >= kVersionWithOwners; }
};

/// Keys and texts, in the order in which they are to be written.
using FieldList = std::vector<std::pair<CString, CString>>;

enum class EntityType : std::uint8_t { Other, Line, LwPolyline, Polyline, Text };

/// What the model wants to know of an entity at once.
struct EntityFacts {
  EntityType type = EntityType::Other;
  bool canBePipe = false;  // a line or polyline; meshes are none
  bool inPaperSpace = false;
  bool hasHandle = false;  // a group 5 that is a handle
  bool oddHandle = false;  // a group 5 that is none
  std::uint64_t handle = 0;
  std::string_view layer = "0";
  std::int32_t pipeData = -1;    // index of the tag that opens the pipe's extended data, -1: no pipe
  std::uint64_t attachedTo = 0;  // handle of the pipe to which the entity belongs
};

/// Reads them from the entity's tags, of which the first is its group 0.
EntityFacts ReadFacts(std::span<const Tag> tags);

/// The way along a line or polyline. line: that of the first tag. Throws DrawingError where a number that the
/// pipe needs is missing or none.
PipeCurve ReadPipeCurve(std::span<const Tag> tags, std::int64_t line);

/// Whether the entity carries extended data of an application.
bool HasExtendedData(std::string_view entity, std::string_view application);

/// The first text of a key in the extended data that begins behind data (the bytes behind the tag that opens
/// it). key is compared as written, and decoded where the file holds other bytes for it.
bool FindField(std::string_view data, const CString& key, const TextEncoding& encoding,
               std::string_view& value);

/// All pairs of that data, in order, keys and texts as they are written.
std::vector<std::pair<std::string_view, std::string_view>> ListFields(std::string_view data);

/// Tags of an entity with a pipe's field set: the value alone is replaced, or the pair added, or the extended
/// data begun where the entity has none.
std::string WithFields(std::string_view entity, const FieldList& fields, const Dialect& dialect);

/// Tags of an entity, and of what belongs to it, on another layer (its name as written).
std::string WithLayer(std::string_view entity, std::string_view layer, const Dialect& dialect);

/// Tags of a LINE with one of its ends moved.
std::string WithLineEnd(std::string_view entity, bool atStart, const AcGePoint3d& point,
                        const Dialect& dialect);

/// Bytes that the extended data of an entity take, and the longest text in it.
struct DataSize {
  std::size_t total = 0;
  std::size_t longest = 0;
};
DataSize MeasureExtendedData(std::string_view entity);

/// First value of a group in front of the extended data, or nothing.
std::string_view FirstValue(std::string_view entity, std::int32_t code);

}  // namespace zwt
