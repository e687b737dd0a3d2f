#include "host/check/riser_walk.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace zwt {
namespace {

/// Branches that leave a riser farther apart belong to several storeys, mm.
constexpr double kLeastStorey = 2000;

/// How far apart the branches leave the riser, at most.
double SpreadOf(const CheckedPipes& pipes, const WalkedSection& section) {
  const Drawing& drawing = pipes.GetDrawing();
  const AcGePoint3d& foot = drawing.PipeOf(section.pipe).start;
  const std::span<const CurvePart> riser = pipes.GetConnections().CurveOf(section.pipe);
  double lowest = std::numeric_limits<double>::infinity();
  double highest = 0;
  for (const std::int32_t branch : section.branches) {
    const PipeRecord& pipe = drawing.PipeOf(branch);
    const bool atStart = DistanceTo(riser, pipe.start) <= DistanceTo(riser, pipe.end);
    const double height = Distance(foot, atStart ? pipe.start : pipe.end);
    lowest = std::min(lowest, height);
    highest = std::max(highest, height);
  }
  return highest - lowest;
}

/// The section first, then what belongs to it.
std::vector<std::int32_t> WithSection(const WalkedSection& section, const std::vector<std::int32_t>& others) {
  std::vector<std::int32_t> entities = {section.pipe};
  entities.insert(entities.end(), others.begin(), others.end());
  return entities;
}

}  // namespace

RiserWalk::RiserWalk(const CheckedPipes& pipes)
    : pipes_(pipes),
      seenIn_(static_cast<std::size_t>(pipes.GetDrawing().EntityCount()), 0),
      walked_(seenIn_.size(), 0) {}

bool RiserWalk::See(std::int32_t pipe) {
  return std::exchange(seenIn_[static_cast<std::size_t>(pipe)], walk_) != walk_;
}

WalkedSection RiserWalk::LookAt(std::int32_t pipe) {
  WalkedSection section;
  section.pipe = pipe;
  for (const std::int32_t other : pipes_.GetConnections().ConnectedTo(pipe)) {
    if (!See(other)) continue;
    const PipeRole role = pipes_.RoleOf(other);
    if (role == PipeRole::kBranch) section.branches.push_back(other);
    if (role == PipeRole::kRiser) section.risers.push_back(other);
    if (role == PipeRole::kEntry) section.entries.push_back(other);
  }
  return section;
}

WalkedRiser RiserWalk::From(std::int32_t entry) {
  ++walk_;
  WalkedRiser riser;
  See(entry);
  std::vector<std::int32_t> waiting = {entry};
  for (std::size_t next = 0; next < waiting.size(); ++next) {
    const std::int32_t pipe = waiting[next];
    if (std::exchange(walked_[static_cast<std::size_t>(pipe)], static_cast<char>(1)) != 0) {
      riser.isWhole = false;
      continue;
    }
    riser.sections.push_back(LookAt(pipe));
    const std::vector<std::int32_t>& risers = riser.sections.back().risers;
    waiting.insert(waiting.end(), risers.begin(), risers.end());
  }
  return riser;
}

void ReportBranches(CheckedPipes& pipes, const WalkedSection& section) {
  const std::size_t count = section.branches.size();
  if (count < 2) return;
  const CString name = pipes.NameOf(section.pipe);
  const CString last = pipes.NameOf(section.branches.back());
  const std::vector<std::int32_t> entities = WithSection(section, section.branches);
  if (SpreadOf(pipes, section) >= kLeastStorey) {
    pipes.Report("tall-riser",
                 L"立管 " + name + L" 为一整根管，跨越多层，接有 " + std::to_wstring(count) +
                     L" 根支管，计算只取最后一根 " + last,
                 pipes.MiddleOf(section.pipe), entities);
  } else {
    pipes.Report(
        "two-branches",
        L"立管 " + name + L" 上接有 " + std::to_wstring(count) + L" 根支管，计算只取最后一根 " + last,
        pipes.MiddleOf(section.pipe), entities);
  }
}

void ReportFork(CheckedPipes& pipes, const WalkedSection& section) {
  if (section.risers.size() < 2) return;
  pipes.Report("riser-fork",
               L"立管 " + pipes.NameOf(section.pipe) + L" 分为 " + std::to_wstring(section.risers.size()) +
                   L" 根立管，计算仍按一根立管依次排列各段",
               pipes.MiddleOf(section.pipe), WithSection(section, section.risers));
}

}  // namespace zwt
