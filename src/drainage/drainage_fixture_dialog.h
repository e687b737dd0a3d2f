// The panel in which a drainage branch is composed from sanitary fixtures.
#pragma once

#include "drainage/drainage_fixtures.h"
#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kDrainageFixturePanel;

}  // namespace zwt

class ZcUiAddPsWareDialog : public CDialog {
 public:
  explicit ZcUiAddPsWareDialog(CDialog* parent = nullptr);

  /// What the branch carries; figures typed by hand overrule the sums.
  zwt::FixtureTotals totals;

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void SetUpGrids();
  void AddFixture(int row);
  void DeleteChosen();
  void ClearChosen();
  void RecalculateTotals();
};
