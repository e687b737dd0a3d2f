// Supply risers: what the hydraulic calculation of a riser system leaves out, overwrites or cannot calculate.
#include <algorithm>

#include "host/check/checked_pipes.h"
#include "host/check/riser_walk.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

class SupplyCheck {
 public:
  SupplyCheck(CheckedPipes& pipes, const CheckSettings& settings)
      : pipes_(pipes), settings_(settings), walk_(pipes) {}

  void LookFrom(std::int32_t entry) {
    const WalkedRiser riser = walk_.From(entry);
    for (const WalkedSection& section : riser.sections) {
      ReportBranches(pipes_, section);
      ReportFork(pipes_, section);
      ReportEntries(section);
      LookAtBranch(section);
      LookAtMaterial(section.pipe);
    }
    if (riser.isWhole) LookForZeroFlow(riser);
  }

 private:
  void ReportEntries(const WalkedSection& section) {
    for (const std::int32_t entry : section.entries) {
      pipes_.Report("second-entry",
                    L"立管 " + pipes_.NameOf(section.pipe) + L" 又接到入口立管 " + pipes_.NameOf(entry) +
                        L"，计算到此为止，不再往前走",
                    pipes_.MiddleOf(section.pipe), {section.pipe, entry});
    }
  }

  void LookAtBranch(const WalkedSection& section) {
    if (section.branches.empty()) {
      pipes_.Report("no-branch",
                    L"立管 " + pipes_.NameOf(section.pipe) + L" 未接支管，该段没有管材和用水数据，均按 0 计",
                    pipes_.MiddleOf(section.pipe), {section.pipe});
      return;
    }
    const std::int32_t branch = section.branches.back();
    if (pipes_.Text(branch, L"Material").empty()) {
      pipes_.Report("no-material", L"支管 " + pipes_.NameOf(branch) + L" 未填管材，该段选不出管径",
                    pipes_.MiddleOf(branch), {branch, section.pipe});
    }
    for (const std::int32_t each : section.branches) LookAtMaterial(each);
  }

  void LookAtMaterial(std::int32_t pipe) {
    if (!settings_.materials) return;
    const CString material = pipes_.Text(pipe, L"Material");
    const std::vector<CString>& known = *settings_.materials;
    if (material.empty() || std::find(known.begin(), known.end(), material) != known.end()) return;
    pipes_.Report("unknown-material",
                  L"管道 " + pipes_.NameOf(pipe) + L" 的管材“" + material + L"”不在管材数据文件中",
                  pipes_.MiddleOf(pipe), {pipe});
  }

  double EquivalentOf(const WalkedSection& section) const {
    return section.branches.empty() ? 0 : _wtof(pipes_.Text(section.branches.back(), L"Equivalent"));
  }

  /// The design flow divides by the equivalents of a section and all behind it.
  void LookForZeroFlow(const WalkedRiser& riser) {
    std::size_t first = riser.sections.size();
    while (first > 0 && EquivalentOf(riser.sections[first - 1]) == 0) --first;
    if (first == riser.sections.size()) return;
    std::vector<std::int32_t> entities;
    for (std::size_t i = first; i < riser.sections.size(); ++i) entities.push_back(riser.sections[i].pipe);
    pipes_.Report("zero-equivalent",
                  L"自入口起第 " + std::to_wstring(first + 1) + L" 段立管 " +
                      pipes_.NameOf(entities.front()) + L" 起当量总数为 0，设计秒流量算不出",
                  pipes_.MiddleOf(entities.front()), entities);
  }

  CheckedPipes& pipes_;
  const CheckSettings& settings_;
  RiserWalk walk_;
};

}  // namespace

void CheckSupply(CheckedPipes& pipes, const CheckSettings& settings) {
  SupplyCheck check(pipes, settings);
  for (const std::int32_t pipe : pipes.Pipes()) {
    if (pipes.IsEntryOf(pipe, L"给水", L"热水")) check.LookFrom(pipe);
  }
}

}  // namespace zwt
