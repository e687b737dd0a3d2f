// What all checks share: the pipes of a drawing with their roles, and the list into which findings go.
#pragma once

#include <cstdint>
#include <vector>

#include "host/check/drawing_check.h"
#include "host/drawing/connections.h"
#include "host/drawing/drawing.h"

namespace zwt {

/// What the walks ask of a pipe's ELS_TYPE.
enum class PipeRole : std::uint8_t { kOther, kEntry, kRiser, kBranch };

class CheckedPipes {
 public:
  /// Looks at the living pipes of a drawing, which must outlive it and stay as it is.
  explicit CheckedPipes(const Drawing& drawing);

  const Drawing& GetDrawing() const { return drawing_; }
  const Connections& GetConnections() const { return connections_; }
  /// Entities in drawing order.
  const std::vector<std::int32_t>& Pipes() const { return pipes_; }
  PipeRole RoleOf(std::int32_t pipe) const { return roles_[static_cast<std::size_t>(pipe)]; }
  CString Text(std::int32_t pipe, const wchar_t* key) const;
  /// The pipe's handle, as texts name it.
  CString NameOf(std::int32_t pipe) const;
  AcGePoint3d MiddleOf(std::int32_t pipe) const;
  /// Whether a command would offer the pipe as the entry of one of these systems.
  bool IsEntryOf(std::int32_t pipe, const wchar_t* system, const wchar_t* otherSystem) const;

  void Report(const char* kind, const CString& text, const AcGePoint3d& place,
              const std::vector<std::int32_t>& entities);
  /// Of an entity that is none of model space: it comes before all others.
  void ReportStray(const char* kind, const CString& text, const AcGePoint3d& place, std::uint64_t handle);

  /// The findings so far in drawing order, each once.
  std::vector<Finding> TakeFindings();

 private:
  struct Placed {
    std::int32_t entity;
    Finding finding;
  };

  const Drawing& drawing_;
  const Connections& connections_;
  std::vector<std::int32_t> pipes_;
  std::vector<PipeRole> roles_;  // by entity
  std::vector<Placed> findings_;
};

/// Millimetres as findings show them: one decimal at most.
CString LengthText(double length);

// The checks, each of which reports what it finds.

/// Free ends that nearly meet, overlaps, pipes without length or outside of the model.
void CheckGeometry(CheckedPipes& pipes);
/// Risers of water supply, from each entry on.
void CheckSupply(CheckedPipes& pipes, const CheckSettings& settings);
/// Drainage stacks, from each entry on.
void CheckDrainage(CheckedPipes& pipes);
/// Networks with a top hydrant.
void CheckHydrants(CheckedPipes& pipes, const CheckSettings& settings);

}  // namespace zwt
