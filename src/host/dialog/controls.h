// The controls of a panel but for the grid, as models without a toolkit: content, state, and word to whoever
// shows the panel that something changed. What a user does to them goes through PanelUser or a desktop
// presenter.
#pragma once

#include <cstdint>
#include <set>
#include <vector>

#include "host/dialog/panel_template.h"

class CDialog;

/// What a change of a control touched, for presenters.
enum class ControlAspect : std::uint8_t {
  kText,
  kEnabled,
  kVisible,
  kReadOnly,
  kChecked,
  kItems,
  kSelection,
  kCells
};

/// Base of all controls.
class CWnd {
 public:
  CWnd(CDialog& panel, const zwt::ControlTemplate& shape);
  CWnd(const CWnd&) = delete;
  CWnd& operator=(const CWnd&) = delete;
  virtual ~CWnd() = default;

  int GetDlgCtrlID() const { return shape_.id; }
  const zwt::ControlTemplate& Shape() const { return shape_; }
  CDialog& Panel() const { return panel_; }

  /// The text beside or on the control, as it is shown now.
  CString Label() const;

  /// The content of an edit or combo box, the text on any other control.
  const CString& GetWindowText() const { return text_; }
  virtual void SetWindowText(const CString& text);

  void EnableWindow(bool enabled = true);
  bool IsWindowEnabled() const { return enabled_; }
  void ShowWindow(bool visible);
  bool IsWindowVisible() const { return visible_; }

  /// Puts the focus here; the content is not selected.
  void SetFocus();

 protected:
  void Changed(ControlAspect aspect);

 private:
  CDialog& panel_;
  const zwt::ControlTemplate& shape_;
  CString text_;
  bool enabled_;
  bool visible_;
};

/// A text on the panel.
class CStatic : public CWnd {
 public:
  using CWnd::CWnd;
};

/// A field of text.
class CEdit : public CWnd {
 public:
  CEdit(CDialog& panel, const zwt::ControlTemplate& shape);

  void SetReadOnly(bool readOnly = true);
  bool IsReadOnly() const { return readOnly_; }

  /// Puts the focus here with the whole content selected.
  void FocusAndSelect();

 private:
  bool readOnly_;
};

/// A push button, a radio button or a check box.
class CButton : public CWnd {
 public:
  using CWnd::CWnd;

  bool GetCheck() const { return checked_; }
  /// Sets this control alone; the exclusion among radio buttons is the panel's (CheckRadioButton) or the
  /// user's.
  void SetCheck(bool checked);

 private:
  bool checked_ = false;
};

/// A combo box: a list to pick from, or a field with a list.
class CComboBox : public CWnd {
 public:
  CComboBox(CDialog& panel, const zwt::ControlTemplate& shape);

  int GetCount() const { return static_cast<int>(items_.size()); }
  const std::vector<CString>& Items() const { return items_; }
  void AddString(const CString& item);
  void ResetContent();

  /// The item shown, -1 for none.
  int GetCurSel() const { return index_; }
  /// Shows item index; out of range shows nothing.
  void SetCurSel(int index);

  /// Sets the text and the item that equals it; a list that has no such item shows nothing.
  void SetWindowText(const CString& text) override;

  bool IsEditable() const { return (Shape().style & zwt::kEditableCombo) != 0; }

  /// The drop-down is as wide as the longest item.
  bool HasAutoWidth() const { return autoWidth_; }
  void SetAutoWidth();

 private:
  std::vector<CString> items_;
  int index_ = -1;
  bool autoWidth_ = false;
};

/// A report list: columns with titles, rows of texts, selected rows.
class CListCtrl : public CWnd {
 public:
  struct Column {
    CString title;
    int width;
  };

  using CWnd::CWnd;

  void InsertColumn(const CString& title, int width);
  const std::vector<Column>& Columns() const { return columns_; }

  int GetItemCount() const { return static_cast<int>(rows_.size()); }
  /// Appends a row whose first column holds text; gives its index.
  int InsertItem(const CString& text);
  void SetItemText(int row, int column, const CString& text);
  /// Empty text for a place outside the list.
  CString GetItemText(int row, int column) const;
  void DeleteAllItems();

  /// The selected rows, ascending.
  const std::set<int>& SelectedRows() const { return selected_; }
  /// The first selected row, -1 for none.
  int GetFirstSelectedItem() const { return selected_.empty() ? -1 : *selected_.begin(); }
  /// Selects exactly this row; a row outside the list selects nothing.
  void SelectItem(int row);

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<CString>> rows_;
  std::set<int> selected_;
};

/// The text that a combo box shows, empty for none.
CString ZwtGetComboBoxCurString(const CComboBox& combo);
/// Picks the item with the text; an editable combo box takes any text. False if a list has no such item.
bool ZwtSetComboBoxCurString(CComboBox& combo, const CString& text);
/// Fits the drop-down to the longest item.
void ZwtSetComboBoxAutoWidth(CComboBox& combo);
