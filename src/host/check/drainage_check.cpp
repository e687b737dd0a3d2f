// Drainage stacks: what leaves the riser or a branch without a right diameter.
#include <algorithm>
#include <array>
#include <string_view>

#include "host/check/checked_pipes.h"
#include "host/check/riser_walk.h"

namespace zwt {
namespace {

bool Contains(const CString& text, std::wstring_view word) {
  return text.find(word) != CString::npos;
}

bool IsMetal(const CString& material) {
  return (Contains(material, L"铁") || Contains(material, L"铜") || Contains(material, L"钢")) &&
         !Contains(material, L"塑");
}

/// The calculation takes as plastic whatever is no metal. Here plastic must say so, in words or by the
/// letters of its kind.
bool IsPlastic(const CString& material) {
  static constexpr std::array<std::wstring_view, 6> kWords = {L"塑", L"PVC", L"PE", L"PP", L"ABS", L"PB"};
  const CString folded = FoldedName(material);
  return std::any_of(kWords.begin(), kWords.end(),
                     [&folded](std::wstring_view word) { return Contains(folded, word); });
}

void LookAtVent(CheckedPipes& pipes, std::int32_t entry) {
  const CString vent = pipes.Text(entry, L"TQType");
  if (vent == L"伸顶通气" || vent == L"专用通气" || vent == L"自循环通气") return;
  const CString name = L"入口立管 " + pipes.NameOf(entry);
  const CString problem = vent.empty() ? L" 未填通气方式（TQType）"
                                       : L" 的通气方式“" + vent + L"”不是伸顶通气、专用通气或自循环通气";
  pipes.Report("vent-type", name + problem + L"，立管管径将为 0", pipes.MiddleOf(entry), {entry});
}

void LookAtMaterial(CheckedPipes& pipes, std::int32_t branch) {
  const CString material = pipes.Text(branch, L"Material");
  if (IsMetal(material) || IsPlastic(material)) return;
  const CString problem = material.empty() ? L" 未填管材" : L" 的管材“" + material + L"”既非金属也非塑料";
  pipes.Report("other-material", L"支管 " + pipes.NameOf(branch) + problem + L"，计算按塑料管取值",
               pipes.MiddleOf(branch), {branch});
}

void LookAtSection(CheckedPipes& pipes, const WalkedSection& section) {
  ReportBranches(pipes, section);
  ReportFork(pipes, section);
  if (section.branches.empty()) {
    pipes.Report("no-branch",
                 L"立管 " + pipes.NameOf(section.pipe) + L" 未接支管，该段不编层号，也不写入管径",
                 pipes.MiddleOf(section.pipe), {section.pipe});
  }
  for (const std::int32_t branch : section.branches) LookAtMaterial(pipes, branch);
}

}  // namespace

void CheckDrainage(CheckedPipes& pipes) {
  RiserWalk walk(pipes);
  for (const std::int32_t pipe : pipes.Pipes()) {
    if (!pipes.IsEntryOf(pipe, L"污水", L"废水")) continue;
    LookAtVent(pipes, pipe);
    for (const WalkedSection& section : walk.From(pipe).sections) LookAtSection(pipes, section);
  }
}

}  // namespace zwt
