// A calculation for people: values go into the panel that a command opens, its calculating buttons are
// pressed in order, and what stands in its result controls comes out. A panel that such a button opens is
// worked in the same way. What stops the calculation is an error here, since nobody is there to look at the
// panel; a field that keeps only a part of the results away is a note.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "host/dialog/panel_user.h"

namespace zwt {

struct BatchRequest {
  std::vector<std::pair<CString, CString>> values;  // control and text, in order
  bool annotate = false;
  bool report = false;   // press the button that writes one
  bool explain = false;  // tell how the results were computed
};

struct BatchResult {
  /// The results as a table for terminals, and behind it how they were computed.
  std::string table;
  /// {"panel", "title", "results": [{"control", "label", and the state}]} as text.
  std::string json;
  /// Messages without a stop sign, and fields that kept a part of the results away.
  std::vector<std::string> notes;
};

class BatchCalculation : public Presenter, private PanelListener {
 public:
  explicit BatchCalculation(const BatchRequest& request)
      : request_(request), open_(request.values.size(), true) {}

  bool HasRun() const { return hasRun_; }
  const BatchResult& Result() const { return result_; }

  /// Calculates in the first panel and in those that its calculating buttons open; others are closed by their
  /// close box. A value goes into the first panel that has its control. Throws ArgumentError for a value that
  /// no panel takes, and where a panel refuses a field or stops with a message.
  void RunModal(CDialog& panel) override;
  void ShowModeless(CDialog&) override {}
  void CloseModeless(CDialog&) override {}
  void ShowMessage(CDialog* owner, const CString& text, const CString& caption, MessageIcon icon) override;
  void GiveWayToDrawing(CDialog&) override {}
  void ReturnFromDrawing(CDialog&) override {}

 private:
  /// What a panel answers to a button.
  struct Answer {
    CString stopped;                    // the message with a stop sign
    std::vector<std::string> messages;  // the others
    std::vector<const CWnd*> refused;   // the fields to which the program moved the focus, in order
  };

  void Calculate(CDialog& panel);
  void SetValues(CDialog& panel);
  /// Throws ArgumentError for the first value that no panel has taken.
  void RequireAllTaken() const;
  void PressAll(CDialog& panel);
  void Press(CDialog& panel, int button);
  Answer Click(CDialog& panel, int button);
  void Confirm(CDialog& panel);
  /// Presses the button with one of the labels; option and deed are for the message where there is none.
  void PressByLabel(CDialog& panel, const std::vector<CString>& labels, const std::string& option,
                    const std::string& deed);
  void Collect(const CDialog& panel, const std::vector<const CWnd*>& controls);

  void OnControlChanged(CWnd&, ControlAspect) override {}
  void OnFocusMoved(CWnd& control, bool selected) override;
  void OnEnded() override {}

  BatchRequest request_;
  std::vector<bool> open_;  // by value: no panel has taken it yet
  std::string missing_;     // why the first open value was not taken
  BatchResult result_;
  bool hasRun_ = false;
  bool pressing_ = false;  // a calculating button is being handled
  Answer answer_;
};

}  // namespace zwt
