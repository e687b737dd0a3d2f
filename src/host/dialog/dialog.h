// Panels. A panel is made from its constant template, keeps its state in plain members, ties them to controls
// in DoDataExchange, and acts in short handlers that it registers in its constructor:
//
//   ZcUiMaxDayDialog::ZcUiMaxDayDialog() : ZcUiDialog(kMaxDayPanel) {
//     OnClick(1, [this] { Calculate(); });
//   }
//
// It never waits, paints or parses files. Nothing here knows a toolkit.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "host/dialog/controls.h"
#include "host/dialog/data_exchange.h"
#include "host/dialog/grid_control.h"
#include "host/dialog/panel_template.h"
#include "host/dialog/presenter.h"
#include "host/text/trace.h"

/// What a grid or list tells of a cell.
enum class CellNotice : std::uint8_t { kClick, kDoubleClick, kBeginEdit, kEndEdit, kChanged };

/// Whoever shows a panel hears of its changes here.
class PanelListener {
 public:
  virtual ~PanelListener() = default;
  virtual void OnControlChanged(CWnd& control, ControlAspect aspect) = 0;
  /// The program moved the focus; selected: with the whole content selected; refused: because the exchange or
  /// a check did not take the content.
  virtual void OnFocusMoved(CWnd& control, bool selected) = 0;
  virtual void OnEnded() = 0;
};

inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;

class CDialog {
 public:
  explicit CDialog(const zwt::PanelTemplate& shape, CDialog* parent = nullptr);
  CDialog(const CDialog&) = delete;
  CDialog& operator=(const CDialog&) = delete;
  virtual ~CDialog();

  const zwt::PanelTemplate& Shape() const { return shape_; }
  CDialog* GetParent() const { return parent_; }

  /// Opens the panel, returns the code with which it closed; IDCANCEL at once where nothing can show it.
  virtual int DoModal();
  /// Shows the panel without waiting for the user.
  void ShowModeless();
  void CloseModeless();

  /// Exchange with the controls: true takes values in, false shows them. A refused field gets the focus with
  /// its content selected, and the result is false.
  bool UpdateData(bool saveAndValidate = true);
  /// Takes in what can be read and passes over the rest in silence, for the way out.
  void TakeReadableValues();

  void EndDialog(int code);
  bool HasEnded() const { return ended_; }
  int EndCode() const { return code_; }

  /// Controls by number. An unknown number, or one of another kind, is an error of the panel's own code.
  CWnd& GetDlgItem(int id) const;
  CEdit& Edit(int id) const { return Item<CEdit>(id); }
  CButton& Button(int id) const { return Item<CButton>(id); }
  CComboBox& Combo(int id) const { return Item<CComboBox>(id); }
  CListCtrl& List(int id) const { return Item<CListCtrl>(id); }
  CGridCtrl& Grid(int id) const { return Item<CGridCtrl>(id); }
  ZcUiWtGridCtrl& WtGrid(int id) const { return Item<ZcUiWtGridCtrl>(id); }
  CWnd* FindItem(int id) const;
  /// All controls in the order of the template.
  const std::vector<std::unique_ptr<CWnd>>& Controls() const { return controls_; }
  /// The static that is the label of a control, null where the template's label serves.
  const CWnd* LabelControlOf(int id) const;
  /// The radio buttons of a group, from its first one on.
  std::vector<CButton*> RadioGroup(int firstId) const;
  /// Checks one radio button and clears the others of its group.
  void CheckRadioButton(int id);

  /// Shortcuts for handlers that switch several controls at once.
  void Enable(std::initializer_list<int> ids, bool enabled);
  void Show(std::initializer_list<int> ids, bool visible);
  void SetDlgItemText(int id, const CString& text) { GetDlgItem(id).SetWindowText(text); }
  const CString& GetDlgItemText(int id) const { return GetDlgItem(id).GetWindowText(); }

  /// Message box over this panel.
  void MessageBoxW(const CString& text, const CString& caption = L"", unsigned flags = 0);

  /// The control that has the focus when the panel opens; null before the panel has chosen.
  CWnd* FocusedControl() const { return focused_; }

  /// Called by controls and presenters.
  void MoveFocus(CWnd& control, bool selected);
  /// The user moved the focus; leaving a field runs its handler.
  void UserFocused(CWnd* control);
  void ControlChanged(CWnd& control, ControlAspect aspect);
  void NotifyClick(int id);
  void NotifySelectionChange(int id);
  void NotifyDropDownClosed(int id);
  void NotifyLeave(int id);
  void NotifyCell(int id, CellNotice notice, int row, int column);
  /// The close box: does what the button 2 does.
  void NotifyClose();
  /// How what a row of a grid shows was computed; the row -1 stands for a control without rows. Empty where
  /// there is nothing to tell, as before the calculation.
  zwt::Trace Explain(int id, int row) const;
  /// Whether a control's results can be explained at all.
  bool CanExplain(int id) const { return explainers_.contains(id); }

  void AddListener(PanelListener* listener);
  void RemoveListener(PanelListener* listener);

 protected:
  virtual void DoDataExchange(CDataExchange* exchange);
  /// Shows the members' values. A panel that sets up grids does so here, after calling the base.
  virtual void OnInitDialog();
  /// Button 1 without a handler of its own: takes the values in and ends with IDOK.
  virtual void OnOK();
  /// Button 2 without a handler of its own, and the close box: ends with IDCANCEL.
  virtual void OnCancel();

  using Handler = std::function<void()>;
  using CellHandler = std::function<void(int row, int column)>;
  void OnClick(int id, Handler handler) { handlers_[{id, Notice::kClick}] = std::move(handler); }
  void OnSelectionChange(int id, Handler handler) {
    handlers_[{id, Notice::kSelection}] = std::move(handler);
  }
  void OnDropDownClosed(int id, Handler handler) { handlers_[{id, Notice::kDropDown}] = std::move(handler); }
  void OnLeave(int id, Handler handler) { handlers_[{id, Notice::kLeave}] = std::move(handler); }
  void OnCell(int id, CellNotice notice, CellHandler handler) {
    cellHandlers_[{id, notice}] = std::move(handler);
  }
  /// The explainer makes the calculation of a row once more, with a trace.
  void OnExplain(int id, std::function<zwt::Trace(int row)> explainer) {
    explainers_[id] = std::move(explainer);
  }

 private:
  enum class Notice : std::uint8_t { kClick, kSelection, kDropDown, kLeave };

  template <typename Control>
  Control& Item(int id) const {
    auto* control = dynamic_cast<Control*>(&GetDlgItem(id));
    if (control == nullptr) WrongKind(id);
    return *control;
  }
  [[noreturn]] void WrongKind(int id) const;
  bool Run(int id, Notice notice);

  const zwt::PanelTemplate& shape_;
  CDialog* parent_;
  std::vector<std::unique_ptr<CWnd>> controls_;
  std::map<int, CWnd*> byId_;
  std::map<int, CWnd*> labels_;
  std::map<std::pair<int, Notice>, Handler> handlers_;
  std::map<std::pair<int, CellNotice>, CellHandler> cellHandlers_;
  std::map<int, std::function<zwt::Trace(int row)>> explainers_;
  std::vector<PanelListener*> listeners_;
  CWnd* focused_ = nullptr;
  bool ended_ = false;
  int code_ = IDCANCEL;
};

/// The platform's panel classes between a dialog and the family's own panels.
class CAdUiBaseDialog : public CDialog {
 public:
  using CDialog::CDialog;

  /// Gives the user the drawing while the panel waits unseen, and brings the panel back.
  void BeginEditorCommand();
  void CompleteEditorCommand(bool restore = true);
};

class CAdUiDialog : public CAdUiBaseDialog {
 public:
  using CAdUiBaseDialog::CAdUiBaseDialog;
};

class CAcUiDialog : public CAdUiDialog {
 public:
  using CAdUiDialog::CAdUiDialog;
};

/// Base of the module's own panels.
class ZcUiDialog : public CAcUiDialog {
 public:
  using CAcUiDialog::CAcUiDialog;
};

namespace zwt {

/// How many panels are open, modal or not. A module with an open panel is not unloaded.
int OpenPanelCount();

}  // namespace zwt
