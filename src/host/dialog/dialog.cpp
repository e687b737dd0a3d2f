// Life of a panel: made from its template, opened, exchanged, ended.
#include "host/dialog/dialog.h"

#include <algorithm>
#include <stdexcept>

namespace {

int& OpenPanels() {
  static int count = 0;
  return count;
}

/// Counts a panel as open for as long as it lives.
class OpenPanel {
 public:
  OpenPanel() { ++OpenPanels(); }
  OpenPanel(const OpenPanel&) = delete;
  OpenPanel& operator=(const OpenPanel&) = delete;
  ~OpenPanel() { --OpenPanels(); }
};

std::unique_ptr<CWnd> MakeControl(CDialog& panel, const zwt::ControlTemplate& shape) {
  using zwt::ControlKind;
  switch (shape.kind) {
    case ControlKind::kEdit:
      return std::make_unique<CEdit>(panel, shape);
    case ControlKind::kStatic:
      return std::make_unique<CStatic>(panel, shape);
    case ControlKind::kButton:
    case ControlKind::kRadio:
    case ControlKind::kCheck:
      return std::make_unique<CButton>(panel, shape);
    case ControlKind::kCombo:
      return std::make_unique<CComboBox>(panel, shape);
    case ControlKind::kList:
      return std::make_unique<CListCtrl>(panel, shape);
    case ControlKind::kGrid:
      return std::make_unique<ZcUiWtGridCtrl>(panel, shape);
  }
  throw std::logic_error("a control of no kind");
}

}  // namespace

namespace zwt {

int OpenPanelCount() {
  return OpenPanels();
}

}  // namespace zwt

CDialog::CDialog(const zwt::PanelTemplate& shape, CDialog* parent) : shape_(shape), parent_(parent) {
  controls_.reserve(shape.controls.size());
  for (const zwt::ControlTemplate& control : shape.controls) {
    controls_.push_back(MakeControl(*this, control));
    CWnd* made = controls_.back().get();
    if (!byId_.emplace(control.id, made).second) throw std::logic_error("two controls share a number");
    if (control.labelOf != 0) labels_[control.labelOf] = made;
  }
}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
  zwt::Presenter* presenter = zwt::CurrentPresenter();
  if (presenter == nullptr) return IDCANCEL;
  ended_ = false;
  code_ = IDCANCEL;
  OnInitDialog();
  if (ended_) return code_;
  const OpenPanel open;
  presenter->RunModal(*this);
  return code_;
}

void CDialog::ShowModeless() {
  OnInitDialog();
  ++OpenPanels();
  if (zwt::Presenter* presenter = zwt::CurrentPresenter()) presenter->ShowModeless(*this);
}

void CDialog::CloseModeless() {
  --OpenPanels();
  if (zwt::Presenter* presenter = zwt::CurrentPresenter()) presenter->CloseModeless(*this);
}

bool CDialog::UpdateData(bool saveAndValidate) {
  using Direction = CDataExchange::Direction;
  CDataExchange exchange(*this, saveAndValidate ? Direction::kTake : Direction::kShow);
  DoDataExchange(&exchange);
  if (exchange.Refused() == nullptr) return true;
  exchange.Refused()->FocusAndSelect();
  return false;
}

void CDialog::TakeReadableValues() {
  CDataExchange exchange(*this, CDataExchange::Direction::kTakeReadable);
  DoDataExchange(&exchange);
}

void CDialog::EndDialog(int code) {
  if (ended_) return;
  ended_ = true;
  code_ = code;
  const auto listeners = listeners_;
  for (PanelListener* listener : listeners) listener->OnEnded();
}

CWnd* CDialog::FindItem(int id) const {
  const auto found = byId_.find(id);
  return found == byId_.end() ? nullptr : found->second;
}

CWnd& CDialog::GetDlgItem(int id) const {
  CWnd* control = FindItem(id);
  if (control == nullptr) WrongKind(id);
  return *control;
}

void CDialog::WrongKind(int id) const {
  throw std::logic_error("panel " + std::to_string(shape_.resource) +
                         " has no such control: " + std::to_string(id));
}

const CWnd* CDialog::LabelControlOf(int id) const {
  const auto found = labels_.find(id);
  return found == labels_.end() ? nullptr : found->second;
}

std::vector<CButton*> CDialog::RadioGroup(int firstId) const {
  std::vector<CButton*> group;
  bool inside = false;
  for (const auto& control : controls_) {
    const zwt::ControlTemplate& shape = control->Shape();
    if (shape.kind != zwt::ControlKind::kRadio) continue;
    if (shape.id == firstId) {
      inside = true;
    } else if ((shape.style & zwt::kGroupStart) != 0) {
      if (inside) break;
    }
    if (inside) group.push_back(&Button(shape.id));
  }
  return group;
}

void CDialog::CheckRadioButton(int id) {
  int first = id;
  for (const auto& control : controls_) {
    const zwt::ControlTemplate& shape = control->Shape();
    if (shape.kind == zwt::ControlKind::kRadio && (shape.style & zwt::kGroupStart) != 0) first = shape.id;
    if (shape.id == id) break;
  }
  for (CButton* button : RadioGroup(first)) button->SetCheck(button->GetDlgCtrlID() == id);
}

void CDialog::Enable(std::initializer_list<int> ids, bool enabled) {
  for (const int id : ids) GetDlgItem(id).EnableWindow(enabled);
}

void CDialog::Show(std::initializer_list<int> ids, bool visible) {
  for (const int id : ids) GetDlgItem(id).ShowWindow(visible);
}

void CDialog::MessageBoxW(const CString& text, const CString& caption, unsigned flags) {
  if (zwt::Presenter* presenter = zwt::CurrentPresenter()) {
    const bool stop = (flags & MB_ICONSTOP) != 0;
    presenter->ShowMessage(this, text, caption, stop ? zwt::MessageIcon::kStop : zwt::MessageIcon::kNone);
  }
}

void CDialog::MoveFocus(CWnd& control, bool selected) {
  focused_ = &control;
  const auto listeners = listeners_;
  for (PanelListener* listener : listeners) listener->OnFocusMoved(control, selected);
}

void CDialog::UserFocused(CWnd* control) {
  if (focused_ == control) return;
  const CWnd* left = std::exchange(focused_, control);
  if (left != nullptr) NotifyLeave(left->GetDlgCtrlID());
}

void CDialog::ControlChanged(CWnd& control, ControlAspect aspect) {
  const auto listeners = listeners_;
  for (PanelListener* listener : listeners) listener->OnControlChanged(control, aspect);
}

bool CDialog::Run(int id, Notice notice) {
  const auto found = handlers_.find({id, notice});
  if (found == handlers_.end()) return false;
  found->second();
  return true;
}

void CDialog::NotifyClick(int id) {
  if (Run(id, Notice::kClick)) return;
  if (id == IDOK) OnOK();
  if (id == IDCANCEL) OnCancel();
}

void CDialog::NotifySelectionChange(int id) {
  Run(id, Notice::kSelection);
}

void CDialog::NotifyDropDownClosed(int id) {
  Run(id, Notice::kDropDown);
}

void CDialog::NotifyLeave(int id) {
  Run(id, Notice::kLeave);
}

void CDialog::NotifyCell(int id, CellNotice notice, int row, int column) {
  const auto found = cellHandlers_.find({id, notice});
  if (found != cellHandlers_.end()) found->second(row, column);
}

void CDialog::NotifyClose() {
  if (!Run(IDCANCEL, Notice::kClick)) OnCancel();
}

zwt::Trace CDialog::Explain(int id, int row) const {
  const auto explainer = explainers_.find(id);
  return explainer == explainers_.end() ? zwt::Trace() : explainer->second(row);
}

void CDialog::AddListener(PanelListener* listener) {
  listeners_.push_back(listener);
}

void CDialog::RemoveListener(PanelListener* listener) {
  std::erase(listeners_, listener);
}

void CDialog::DoDataExchange(CDataExchange*) {}

void CDialog::OnInitDialog() {
  UpdateData(false);
}

void CDialog::OnOK() {
  if (UpdateData(true)) EndDialog(IDOK);
}

void CDialog::OnCancel() {
  EndDialog(IDCANCEL);
}

void CAdUiBaseDialog::BeginEditorCommand() {
  if (zwt::Presenter* presenter = zwt::CurrentPresenter()) presenter->GiveWayToDrawing(*this);
}

void CAdUiBaseDialog::CompleteEditorCommand(bool restore) {
  zwt::Presenter* presenter = zwt::CurrentPresenter();
  if (presenter != nullptr && restore) presenter->ReturnFromDrawing(*this);
}
