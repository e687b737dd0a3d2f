// The walk of the supply and drainage calculations over the risers of a drawing, from an entry on, with what
// each section shows that the calculations do not tell of.
#pragma once

#include <cstdint>
#include <vector>

#include "host/check/checked_pipes.h"

namespace zwt {

/// A riser section and what the walk meets first at it, in drawing order.
struct WalkedSection {
  std::int32_t pipe = 0;
  std::vector<std::int32_t> branches;
  std::vector<std::int32_t> risers;
  std::vector<std::int32_t> entries;
};

/// The sections of one entry in the order of the walk.
struct WalkedRiser {
  std::vector<WalkedSection> sections;
  bool isWhole = true;  // false: the walk met sections that an earlier one had walked
};

/// Walks from one entry after another. A section is walked once: what a later walk would show of it again is
/// left out, so that all walks together cost no more than the drawing is large.
class RiserWalk {
 public:
  explicit RiserWalk(const CheckedPipes& pipes);

  WalkedRiser From(std::int32_t entry);

 private:
  WalkedSection LookAt(std::int32_t pipe);
  bool See(std::int32_t pipe);

  const CheckedPipes& pipes_;
  std::int32_t walk_ = 0;
  std::vector<std::int32_t> seenIn_;  // by entity: the last walk that met it
  std::vector<char> walked_;          // by entity
};

/// A riser section with several branches: the last one counts. Where they leave it at the heights of several
/// storeys the section is a riser drawn as one pipe.
void ReportBranches(CheckedPipes& pipes, const WalkedSection& section);
/// A section from which several risers go on.
void ReportFork(CheckedPipes& pipes, const WalkedSection& section);

}  // namespace zwt
