// What the user does with drawing files: new, open, save, save as, the files last worked on. Changes that are
// not saved are never lost without a question, and what goes wrong is told in a message.
#pragma once

#include <QAction>
#include <QMenu>
#include <QString>
#include <functional>

#include "desktop/desktop_presenter.h"
#include "desktop/document.h"
#include "desktop/settings.h"

namespace zwt {

class FileActions {
 public:
  /// All of them outlive the actions; window is the parent of dialogs.
  FileActions(Document& document, DesktopPresenter& presenter, Settings& settings, QWidget* window);

  /// Puts the actions into a menu.
  void AddTo(QMenu& menu);
  void SetEnabled(bool enabled);

  void New();
  /// Asks which file to open.
  void Open();
  /// Opens a file after asking what becomes of changes; false where it is not open afterwards.
  bool OpenFile(const QString& path);
  /// False where the drawing is not saved afterwards.
  bool Save();
  bool SaveAs();
  /// Asks to save changes; false where the user would rather stay with the drawing.
  bool MayLeave();
  /// Reads a file that another program has changed again, after asking where changes here would be lost.
  void CatchUp();

  /// Called when another file's drawing is shown.
  std::function<void()> onOpened;
  /// A line for the command line.
  std::function<void(const CString&)> onNote;
  /// Ask for a file to open or to save to; empty: given up. The toolkit's dialogs at first.
  std::function<QString()> askWhatToOpen;
  std::function<QString(const QString& proposed)> askWhereToSave;

 private:
  void FillRecent();
  bool WriteTo(const QString& path);
  void Tell(const QString& text);
  void TellUnreadable(const std::filesystem::path& path, const std::exception& error);

  Document& document_;
  DesktopPresenter& presenter_;
  Settings& settings_;
  QWidget* window_;
  QMenu recent_;
  QList<QAction*> actions_;
  bool catchingUp_ = false;
};

}  // namespace zwt
