// Playing steps. A step that opens a panel plays that panel's steps inside itself, as the user would.
#include "cli/panel_player.h"

#include <utility>

#include "cli/control_state.h"
#include "cli/script_error.h"

namespace zwt {

namespace {

std::string PanelName(const CDialog& panel) {
  return "panel " + std::to_string(panel.Shape().resource);
}

void RequireOpen(const CDialog& panel, const std::string& at) {
  if (panel.HasEnded()) throw ScriptError(at, PanelName(panel) + " has closed before this step");
}

}  // namespace

/// Hears of a panel for as long as it lives, also when an error leaves the panel.
class PanelPlayer::Listening {
 public:
  Listening(CDialog& panel, PanelPlayer& player) : panel_(panel), player_(player) {
    panel_.AddListener(&player_);
  }
  Listening(const Listening&) = delete;
  Listening& operator=(const Listening&) = delete;
  ~Listening() { panel_.RemoveListener(&player_); }

 private:
  CDialog& panel_;
  PanelPlayer& player_;
};

void PanelPlayer::RequirePlayed() const {
  if (script_.steps != nullptr && !script_.steps->empty())
    throw ScriptError(script_.at, "no panel has opened");
}

PointAnswer PanelPlayer::NextPoint() {
  if (script_.points == nullptr || script_.nextPoint == script_.points->size()) return PointAnswer::kCancel;
  return (*script_.points)[script_.nextPoint++];
}

void PanelPlayer::RunModal(CDialog& panel) {
  const std::vector<PanelStep>* steps = std::exchange(script_.steps, nullptr);
  const std::string at = script_.at;
  log_.Open(panel);
  {
    const Listening listening(panel, *this);
    if (steps != nullptr) {
      for (const PanelStep& step : *steps) PlayStep(panel, step);
    }
    if (!panel.HasEnded()) panel.NotifyClose();
  }
  if (!panel.HasEnded()) throw ScriptError(at, PanelName(panel) + " stays open after its close box");
  log_.Close(panel);
}

void PanelPlayer::PlayStep(CDialog& panel, const PanelStep& step) {
  RequireOpen(panel, step.at);
  try {
    std::visit([&](const auto& action) { Act(panel, step, action); }, step.action);
  } catch (const PanelRefusal& refusal) {
    throw ScriptError(step.at, refusal.what());
  }
}

void PanelPlayer::Act(CDialog& panel, const PanelStep& step, const SetStep& set) {
  PanelUser user(panel);
  for (const auto& [control, text] : set.values) {
    RequireOpen(panel, step.at);
    user.Set(user.Find(control), text);
  }
}

void PanelPlayer::Act(CDialog& panel, const PanelStep& step, const IndexStep& index) {
  PanelUser user(panel);
  for (const auto& [control, item] : index.items) {
    RequireOpen(panel, step.at);
    user.Pick(user.Find(control), item);
  }
}

void PanelPlayer::Act(CDialog& panel, const PanelStep& step, const ClickStep& click) {
  PanelUser user(panel);
  CWnd& control = user.Find(click.control);
  Play(click.panel, PointerTo(step.at, "panel"), [&] {
    script_.points = &click.points;
    user.Click(control);
  });
}

void PanelPlayer::Act(CDialog& panel, const PanelStep& step, const CellStep& cell) {
  PanelUser user(panel);
  CWnd& control = user.Find(cell.control);
  switch (cell.action) {
    case CellAction::kSelect:
      return user.SelectCell(control, cell.row, cell.column);
    case CellAction::kClick:
      return user.ClickCell(control, cell.row, cell.column);
    case CellAction::kEdit:
      return user.EditCell(control, cell.row, cell.column, cell.text);
    case CellAction::kDoubleClick:
      return Play(cell.panel, PointerTo(step.at, "panel"),
                  [&] { user.DoubleClickCell(control, cell.row, cell.column); });
  }
}

void PanelPlayer::Act(CDialog& panel, const PanelStep&, const CellsStep& cells) {
  PanelUser user(panel);
  user.SelectCells(user.Find(cells.control), {cells.row, cells.column, cells.endRow, cells.endColumn});
}

void PanelPlayer::Act(CDialog& panel, const PanelStep&, const ReadStep& read) {
  const PanelUser user(panel);
  std::vector<const CWnd*> controls;
  if (read.all) {
    for (const auto& control : panel.Controls()) {
      if (!IsMereLabel(*control)) controls.push_back(control.get());
    }
  }
  for (const ControlName& name : read.controls) controls.push_back(&user.Find(name));
  log_.Read(panel, controls);
}

void PanelPlayer::Act(CDialog& panel, const PanelStep&, const CloseStep&) {
  panel.NotifyClose();
}

void PanelPlayer::ShowModeless(CDialog& panel) {
  log_.Progress(panel);
}

void PanelPlayer::CloseModeless(CDialog&) {}

void PanelPlayer::ShowMessage(CDialog*, const CString& text, const CString& caption, MessageIcon icon) {
  log_.Message(text, caption, icon);
}

void PanelPlayer::GiveWayToDrawing(CDialog&) {}

void PanelPlayer::ReturnFromDrawing(CDialog&) {}

void PanelPlayer::OnControlChanged(CWnd&, ControlAspect) {}

void PanelPlayer::OnFocusMoved(CWnd& control, bool selected) {
  log_.Focus(control, selected);
}

void PanelPlayer::OnEnded() {}

}  // namespace zwt
