// What the check finds in the drawing, as a list: a click shows the place, gaps can be closed.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <vector>

#include "host/check/drawing_check.h"

namespace zwt {

class FindingsView : public QWidget {
 public:
  explicit FindingsView(QWidget* parent);

  /// Checks the working drawing and lists what is found.
  void Check();
  /// The drawing has changed: where it was checked, checks a small one again and says of a large one that the
  /// list is old.
  void Follow();
  /// Another drawing: nothing was checked yet.
  void Reset();

  QListWidget& List() const { return *list_; }

  /// The user wants to see a finding.
  std::function<void(const Finding&)> onShow;
  /// A line for the command line.
  std::function<void(const CString&)> onNote;

 private:
  void CloseAllGaps();

  std::vector<Finding> findings_;
  QLabel* summary_;
  QListWidget* list_;
  QPushButton* close_;
  bool checked_ = false;
};

}  // namespace zwt
