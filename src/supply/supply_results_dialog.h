// The panel of the command ZWTGSJS: the riser sections of a supply system in a grid, their calculation,
// diameters overruled by hand, branch data, annotation.
#pragma once

#include <cstdint>
#include <map>

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
  struct RowSection {
    ZwtVPipeData* riser = nullptr;
    std::int32_t position = 0;
    ZwtVPipeEdge* edge = nullptr;  // null where the row names none
  };

  RowSection SectionOfRow(int row);
  zwt::Trace ExplainRow(int row);
  /// What the rows show, for the eye.
  void PublishSections();
  void EditSelectedSection();
  void ViewDrawing();
  void AnnotateAllSections();
  void WriteSupplyReport();
  void OnBeginCellEdit(int row, int column);
  void OnEndCellEdit(int row, int column);
  bool IsDiameterCell(int row, int column) const;

  /// What the last recalculation of a row took.
  struct OverruledSection {
    double flow = 0;            // L/s
    std::int32_t diameter = 0;  // nominal, mm
  };

  bool calculated_ = false;  // set by the first calculation, never cleared
  CString calculatedClass_;  // building class and place of the last calculation
  CString calculatedPlace_;
  std::map<int, OverruledSection> overruled_;  // by row, since then
  CString textBeforeEdit_;
};
