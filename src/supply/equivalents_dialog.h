// The panel that adds up a list of supply fittings into a number of equivalents. The quantities are
// remembered between openings for as long as the module is loaded.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kEquivalentsPanel;

/// Forgets the quantities of the first eight rows; those of later rows survive.
void ClearRememberedQuantities();

}  // namespace zwt

class ZcUiGEquivalentDialog : public CDialog {
 public:
  explicit ZcUiGEquivalentDialog(CDialog* parent = nullptr);

  /// Equivalents in all. A value other than 0 on opening shows the remembered quantities.
  double total = 0;

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void FillEquivalentGrid();
  void SumEquivalents();
  void ClearQuantities();
};
