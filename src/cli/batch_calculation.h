// A calculation for people: values go into the panel that a command opens, its calculating buttons are
// pressed in order, and what stands in its result controls comes out. What stops the calculation is an error
// here, since nobody is there to look at the panel.
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
};

struct BatchResult {
  /// The results as a table for terminals.
  std::string table;
  /// {"panel", "title", "results": [{"control", "label", and the state}]} as text.
  std::string json;
  /// Messages without a stop sign.
  std::vector<CString> notes;
};

class BatchCalculation : public Presenter, private PanelListener {
 public:
  explicit BatchCalculation(const BatchRequest& request) : request_(request) {}

  bool HasRun() const { return hasRun_; }
  const BatchResult& Result() const { return result_; }

  /// Calculates in the first panel; others are closed by their close box. Throws ArgumentError for a value
  /// that the panel does not take, and where the panel refuses a field or stops with a message.
  void RunModal(CDialog& panel) override;
  void ShowModeless(CDialog&) override {}
  void CloseModeless(CDialog&) override {}
  void ShowMessage(CDialog* owner, const CString& text, const CString& caption, MessageIcon icon) override;
  void GiveWayToDrawing(CDialog&) override {}
  void ReturnFromDrawing(CDialog&) override {}

 private:
  void Calculate(CDialog& panel);
  void Press(CDialog& panel, int button);
  void Annotate(CDialog& panel);

  void OnControlChanged(CWnd&, ControlAspect) override {}
  void OnFocusMoved(CWnd& control, bool selected) override;
  void OnEnded() override {}

  BatchRequest request_;
  BatchResult result_;
  bool hasRun_ = false;
  CString stopped_;                // the message with a stop sign
  const CWnd* refused_ = nullptr;  // the field to which the program moved the focus
};

}  // namespace zwt
