// A user's hands on a panel without a toolkit: what typing, picking, pressing and clicking do to the
// controls, and which of it a control refuses. The headless player and tests work through this; the desktop's
// widgets end in the same notices.
#pragma once

#include <stdexcept>
#include <string>

#include "host/dialog/dialog.h"

namespace zwt {

/// A control does not take what the user tried; what() says which and why, in UTF-8.
class PanelRefusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// No control of the panel has the number, name or label.
class NoSuchControl : public PanelRefusal {
 public:
  using PanelRefusal::PanelRefusal;
};

class PanelUser {
 public:
  explicit PanelUser(CDialog& panel) : panel_(panel) {}

  /// The control that a number, a bound value's name, or a label (with or without the mark of its shortcut)
  /// names. Throws NoSuchControl if there is none, PanelRefusal if several bear the label.
  CWnd& Find(const CString& control) const;

  /// Focus, replace the content or pick the item with that text, leave.
  void Set(CWnd& control, const CString& text);
  /// Pick item index of a combo box, or row index of a list.
  void Pick(CWnd& control, int index);
  /// Press a push button, a radio button or a check box.
  void Click(CWnd& control);

  /// On a grid or list. Row -1 selects nothing.
  void SelectCell(CWnd& control, int row, int column);
  void SelectCells(CWnd& control, const CCellRange& range);
  void ClickCell(CWnd& control, int row, int column);
  void DoubleClickCell(CWnd& control, int row, int column);
  void EditCell(CWnd& control, int row, int column, const CString& text);

  void Close() { panel_.NotifyClose(); }

 private:
  CDialog& panel_;
};

}  // namespace zwt
