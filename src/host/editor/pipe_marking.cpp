#include "host/editor/pipe_marking.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "host/drawing/connections.h"
#include "host/drawing/tags.h"

namespace zwt {
namespace {

constexpr const wchar_t* kRiser = L"立管";
constexpr const wchar_t* kEntry = L"入口立管";
constexpr const wchar_t* kBranch = L"支管";
constexpr const wchar_t* kFire = L"消防";

template <class T>
bool Allows(const std::vector<T>& list, const T& value) {
  return list.empty() || std::find(list.begin(), list.end(), value) != list.end();
}

/// Colour in which an entity is seen; 0 where that is told by what inserts it.
std::int32_t ColorOf(const Drawing& drawing, const EntityRecord& entity) {
  constexpr std::int64_t kOfLayer = 256;
  std::int64_t color = kOfLayer;
  ParseInteger(FirstValue(entity.tags, 62), color);
  if (color == kOfLayer) return drawing.Data().layers[static_cast<std::size_t>(entity.layer)].color;
  return color >= 0 && color < kOfLayer ? static_cast<std::int32_t>(color) : 0;
}

/// Proposes roles from the geometry of some pipes and what they connect to.
class RoleProposal {
 public:
  RoleProposal(const Drawing& drawing, std::span<const std::int32_t> pipes)
      : drawing_(drawing), connections_(drawing.GetConnections()), pipes_(pipes) {
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -lowest;
    for (const std::int32_t pipe : pipes) {
      for (const AcGePoint3d& end : {StartOf(pipe), EndOf(pipe)}) {
        lowest = std::min(lowest, end.z);
        highest = std::max(highest, end.z);
      }
    }
    isSpatial_ = highest - lowest > kTouch;
    marked_.assign(static_cast<std::size_t>(drawing.EntityCount()), 0);
    for (const std::int32_t pipe : pipes) Mark(pipe) = kWaiting;
  }

  std::vector<CString> Roles() {
    std::vector<CString> roles;
    roles.reserve(pipes_.size());
    for (const std::int32_t pipe : pipes_) {
      if (Mark(pipe) == kWaiting) NoteEntryOfNetwork(pipe);
    }
    for (const std::int32_t pipe : pipes_) roles.push_back(RoleOf(pipe));
    return roles;
  }

 private:
  enum Progress : char { kNotMeant, kWaiting, kSeen, kIsEntry };

  char& Mark(std::int32_t pipe) { return marked_[static_cast<std::size_t>(pipe)]; }
  const AcGePoint3d& StartOf(std::int32_t pipe) const { return drawing_.PipeOf(pipe).start; }
  const AcGePoint3d& EndOf(std::int32_t pipe) const { return drawing_.PipeOf(pipe).end; }
  double HeightOf(const AcGePoint3d& point) const { return isSpatial_ ? point.z : point.y; }
  bool IsFree(const AcGePoint3d& end) const { return connections_.PipesAt(end).size() == 1; }

  bool IsUpright(std::int32_t pipe) const {
    constexpr double kSteep = 50;  // a line drawn by hand is off by a degree
    const Vector way = EndOf(pipe) - StartOf(pipe);
    const double height = std::abs(isSpatial_ ? way.z : way.y);
    const double aside = isSpatial_ ? std::hypot(way.x, way.y) : std::abs(way.x);
    return height > kTouch && height > kSteep * aside;
  }

  const AcGePoint3d& FootOf(std::int32_t pipe) const {
    return HeightOf(EndOf(pipe)) < HeightOf(StartOf(pipe)) ? EndOf(pipe) : StartOf(pipe);
  }

  bool IsFirePipe(std::int32_t pipe) const {
    CString system;
    drawing_.GetField(pipe, L"WtSystem", system);
    return system == kFire;
  }

  /// Goes over everything that hangs together with a pipe, and marks the upright one with the lowest free
  /// foot.
  void NoteEntryOfNetwork(std::int32_t first) {
    std::int32_t entry = -1;
    std::vector<std::int32_t> waiting = {first};
    Mark(first) = kSeen;
    for (std::size_t next = 0; next < waiting.size(); ++next) {
      const std::int32_t pipe = waiting[next];
      const bool isLower = entry < 0 || HeightOf(FootOf(pipe)) < HeightOf(FootOf(entry));
      if (isLower && IsUpright(pipe) && !IsFirePipe(pipe) && IsFree(FootOf(pipe))) entry = pipe;
      for (const std::int32_t other : connections_.ConnectedTo(pipe)) {
        if (Mark(other) != kWaiting) continue;
        Mark(other) = kSeen;
        waiting.push_back(other);
      }
    }
    if (entry >= 0) Mark(entry) = kIsEntry;
  }

  CString RoleOf(std::int32_t pipe) {
    if (IsUpright(pipe)) return Mark(pipe) == kIsEntry ? kEntry : kRiser;
    const bool startIsFree = IsFree(StartOf(pipe));
    if (startIsFree == IsFree(EndOf(pipe))) return {};
    for (const std::int32_t other : connections_.PipesAt(startIsFree ? EndOf(pipe) : StartOf(pipe))) {
      if (other != pipe && IsUpright(other)) return kBranch;
    }
    return {};
  }

  const Drawing& drawing_;
  const Connections& connections_;
  std::span<const std::int32_t> pipes_;
  bool isSpatial_ = false;
  std::vector<char> marked_;  // by entity, a Progress
};

CString SystemOf(const Drawing& drawing, std::int32_t entity) {
  const std::int32_t layer = drawing.Entity(entity).layer;
  return ProposeSystem(drawing.Data().layers[static_cast<std::size_t>(layer)].name);
}

/// What is to be set, before the roles: they follow from what the pipes then connect to.
std::vector<FieldsOfPipe> FieldsBeforeRoles(const Drawing& drawing, std::span<const std::int32_t> entities,
                                            const PipeMarking& marking) {
  std::vector<FieldsOfPipe> pipes;
  pipes.reserve(entities.size());
  for (const std::int32_t entity : entities) {
    FieldsOfPipe& pipe = pipes.emplace_back(FieldsOfPipe{entity, marking.fields});
    const CString system = marking.proposeSystem ? SystemOf(drawing, entity) : CString();
    if (!system.empty()) PutField(pipe.fields, L"WtSystem", system);
  }
  return pipes;
}

}  // namespace

bool CanBePipe(const Drawing& drawing, std::int32_t entity) {
  const EntityRecord& record = drawing.Entity(entity);
  return record.alive && record.canBePipe && !record.inPaperSpace;
}

std::vector<std::int32_t> FindLines(const Drawing& drawing, const EntityChoice& choice) {
  std::vector<std::int32_t> found;
  for (std::int32_t i = 0; i < drawing.EntityCount(); ++i) {
    const EntityRecord& entity = drawing.Entity(i);
    if (CanBePipe(drawing, i) && Allows(choice.layers, entity.layer) &&
        Allows(choice.handles, entity.handle) &&
        (choice.colors.empty() || Allows(choice.colors, ColorOf(drawing, entity)))) {
      found.push_back(i);
    }
  }
  return found;
}

CString ProposeSystem(const CString& layerName) {
  struct Word {
    std::wstring_view inName;
    const wchar_t* system;
  };
  // A layer of 消防给水 holds fire pipes, one of 热水给水 hot water.
  static constexpr std::array<Word, 6> kWords = {{{L"热水", L"热水"},
                                                  {L"消防", kFire},
                                                  {L"消火栓", kFire},
                                                  {L"污水", L"污水"},
                                                  {L"废水", L"废水"},
                                                  {L"给水", L"给水"}}};
  for (const Word& word : kWords) {
    if (layerName.find(word.inName) != CString::npos) return word.system;
  }
  return {};
}

std::vector<CString> ProposeRoles(const Drawing& drawing, std::span<const std::int32_t> pipes) {
  return RoleProposal(drawing, pipes).Roles();
}

void PutField(FieldList& fields, const CString& key, const CString& text) {
  const auto held =
      std::find_if(fields.begin(), fields.end(),
                   [&key](const std::pair<CString, CString>& field) { return field.first == key; });
  if (held == fields.end()) {
    fields.emplace_back(key, text);
  } else {
    held->second = text;
  }
}

Acad::ErrorStatus MarkPipes(Drawing& drawing, std::span<const std::int32_t> entities,
                            const PipeMarking& marking) {
  const std::vector<FieldsOfPipe> fields = FieldsBeforeRoles(drawing, entities, marking);
  if (marking.proposeRole) {
    // Room for the longest role, since nothing is to be half done.
    std::vector<FieldsOfPipe> withRole = fields;
    for (FieldsOfPipe& pipe : withRole) PutField(pipe.fields, L"ELS_TYPE", kEntry);
    const Acad::ErrorStatus checked = drawing.CheckPipes(withRole);
    if (checked != Acad::eOk) return checked;
  }
  drawing.BeginStep();
  Acad::ErrorStatus status = drawing.MakePipes(fields);
  if (status == Acad::eOk && marking.proposeRole) {
    const std::vector<CString> roles = ProposeRoles(drawing, entities);
    std::vector<FieldsOfPipe> pipes;
    for (std::size_t i = 0; i < entities.size(); ++i) {
      if (!roles[i].empty()) pipes.push_back({entities[i], {{L"ELS_TYPE", roles[i]}}});
    }
    status = drawing.MakePipes(pipes);
  }
  drawing.EndStep();
  return status;
}

}  // namespace zwt
