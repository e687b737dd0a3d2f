// What shows panels: a desktop with widgets or a player with a script. A panel asks for everything by calls
// that return when the user has answered, and cannot tell which presenter it has.
#pragma once

#include <cstdint>

#include "host/text/wide_text.h"

class CDialog;

namespace zwt {

enum class MessageIcon : std::uint8_t { kNone, kStop };

class Presenter {
 public:
  virtual ~Presenter() = default;

  /// Lets the user work in the panel until it has ended. Returns with panel.HasEnded().
  virtual void RunModal(CDialog& panel) = 0;

  /// Shows a panel without waiting; it is painted when the call returns.
  virtual void ShowModeless(CDialog& panel) = 0;
  virtual void CloseModeless(CDialog& panel) = 0;

  /// Shows a message and returns when the user has seen it. owner may be null.
  virtual void ShowMessage(CDialog* owner, const CString& text, const CString& caption, MessageIcon icon) = 0;

  /// Hides a panel for work in the drawing, without ending it, and brings it back.
  virtual void GiveWayToDrawing(CDialog& panel) = 0;
  virtual void ReturnFromDrawing(CDialog& panel) = 0;
};

/// The presenter in force, null before one is set.
Presenter* CurrentPresenter();
/// Puts a presenter in force and gives back the one before it.
Presenter* SetPresenter(Presenter* presenter);

}  // namespace zwt

/// Flag of a message box with the stop sign.
inline constexpr unsigned MB_ICONSTOP = 0x10;

/// A message box with an OK button, in the presenter in force; without one nothing is shown.
void AfxMessageBox(const CString& text);
