// The panel from which a water quota is picked: dwellings or public buildings, one click a row.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kQuotaPanel;

}  // namespace zwt

class ZcUiMaxDayParamDialog : public CDialog {
 public:
  enum class Table : std::uint8_t { kDwellings, kPublicBuildings };

  explicit ZcUiMaxDayParamDialog(CDialog* parent = nullptr);

  // What was picked: L per user and day, factor, hours per day. All zero and empty before a row is clicked.
  CString name;
  double quota = 0;
  double hourlyFactor = 0;
  int hours = 0;
  Table table = Table::kDwellings;

 protected:
  void OnInitDialog() override;

 private:
  void ShowDwellings();
  void ShowPublicBuildings();
  /// Takes the values of the clicked row; false where the cell belongs to no row of values.
  bool PickRow(int row, int column);
  bool PickDwelling(int row, int column);
  bool PickPublicBuilding(int row, int column);
};
