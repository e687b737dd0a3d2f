// The sheet beside a panel: how the selected row of its results was computed, and the curves that the panel
// has published. It stays out of the way until the user opens it.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <functional>
#include <vector>

#include "desktop/profile_plot.h"
#include "host/text/trace.h"

namespace zwt {

/// The steps as a page: a line for what is found, below it the formula, the numbers and the clause.
QString TracePage(const CString& title, const Trace& trace);

class SideSheet : public QDialog {
 public:
  explicit SideSheet(QWidget* panel);

  /// An empty trace says that there is nothing to tell yet.
  void Explain(const CString& title, const Trace& trace);
  /// Without profiles the page of curves is hidden.
  void ShowProfiles(const std::vector<OverlayProfile>& profiles);

  QTextBrowser& Text() { return *text_; }
  ProfilePlot& Plot() { return *plot_; }
  QComboBox& Choice() { return *choice_; }

  /// Asks where a picture goes; empty: nowhere. Replaced by tests.
  std::function<QString()> onAskPicture;

 private:
  void MakeCurvesPage();
  void SavePicture();

  QTabWidget* pages_;
  QTextBrowser* text_;
  QWidget* curves_;
  QComboBox* choice_;
  ProfilePlot* plot_;
  std::vector<OverlayProfile> profiles_;
};

}  // namespace zwt
