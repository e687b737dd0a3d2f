// The panel of the command ZWTGSJS: the riser sections of a supply system in a grid, their calculation,
// diameters overruled by hand, branch data, annotation.
#pragma once

#include "host/dialog/dialog.h"
#include "supply/supply_network.h"

namespace zwt {

extern const PanelTemplate kSupplyResultsPanel;

/// The command ZWTGSJS: asks for the entry risers, builds the model and opens the panel.
void RunSupplyCommand();

}  // namespace zwt

class ZcUiElementsGsDialog : public ZcUiDialog {
 public:
  ZcUiElementsGsDialog();

  /// The riser lines, in the order of the rows.
  ZcDList<ZwtVPipeData> risers;

 protected:
  void OnInitDialog() override;

 private:
  void InitGrid();
  void FillGrid();
  void UpdateClassControls();
  void CalculateAll();
  void RecalculateChanged();
  /// What the rows show, for the eye.
  void PublishSections();
  void EditSelectedSection();
  void ViewDrawing();
  void AnnotateAllSections();
  void WriteSupplyReport();
  void OnBeginCellEdit(int row, int column);
  void OnEndCellEdit(int row, int column);
  bool IsDiameterCell(int row, int column) const;

  bool calculated_ = false;  // set by the first calculation, never cleared
  CString textBeforeEdit_;
};
