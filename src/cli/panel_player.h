// The user of a script: works the panels that commands open, step by step, and answers point prompts.
// Everything that panels do meanwhile goes into the log. It knows nothing of commands and drawings.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/event_log.h"
#include "cli/run_script.h"
#include "host/dialog/panel_user.h"

namespace zwt {

class PanelPlayer : public Presenter, private PanelListener {
 public:
  explicit PanelPlayer(EventLog& log) : log_(log) {}

  /// Runs an action that may open a panel, and plays the steps there. A panel for which there are no steps is
  /// closed at once. at is the pointer of the steps. Throws ScriptError for a step that cannot be played, and
  /// where steps stay unplayed since no panel opened.
  template <typename Action>
  void Play(const std::vector<PanelStep>& steps, const std::string& at, Action action) {
    static const std::vector<PointAnswer> kNoPoints;
    const Script before = script_;
    script_ = {&steps, at, &kNoPoints, 0};
    action();
    RequirePlayed();
    script_ = before;
  }

  /// The next answer to a point prompt; cancelling, when there is none left.
  PointAnswer NextPoint();

  void RunModal(CDialog& panel) override;
  void ShowModeless(CDialog& panel) override;
  void CloseModeless(CDialog& panel) override;
  void ShowMessage(CDialog* owner, const CString& text, const CString& caption, MessageIcon icon) override;
  void GiveWayToDrawing(CDialog& panel) override;
  void ReturnFromDrawing(CDialog& panel) override;

 private:
  /// What is to be played in the panel and at the point prompts that come next.
  struct Script {
    const std::vector<PanelStep>* steps = nullptr;  // null once a panel has taken them
    std::string at;
    const std::vector<PointAnswer>* points = nullptr;
    std::size_t nextPoint = 0;
  };
  class Listening;

  void RequirePlayed() const;
  void PlayStep(CDialog& panel, const PanelStep& step);
  void Act(CDialog& panel, const PanelStep& step, const SetStep& set);
  void Act(CDialog& panel, const PanelStep& step, const IndexStep& index);
  void Act(CDialog& panel, const PanelStep& step, const ClickStep& click);
  void Act(CDialog& panel, const PanelStep& step, const CellStep& cell);
  void Act(CDialog& panel, const PanelStep& step, const CellsStep& cells);
  void Act(CDialog& panel, const PanelStep& step, const ReadStep& read);
  void Act(CDialog& panel, const PanelStep& step, const CloseStep& close);

  void OnControlChanged(CWnd& control, ControlAspect aspect) override;
  void OnFocusMoved(CWnd& control, bool selected) override;
  void OnEnded() override;

  EventLog& log_;
  Script script_;
};

/// Puts a presenter in force for as long as it lives.
class PresenterInForce {
 public:
  explicit PresenterInForce(Presenter& presenter) : before_(SetPresenter(&presenter)) {}
  PresenterInForce(const PresenterInForce&) = delete;
  PresenterInForce& operator=(const PresenterInForce&) = delete;
  ~PresenterInForce() { SetPresenter(before_); }

 private:
  Presenter* before_;
};

}  // namespace zwt
