// The panel in which a model of the catalogue and a number of placing points are chosen, and which says how
// many units go to each point.
#pragma once

#include <cstdint>
#include <vector>

#include "fire/extinguisher_sizing.h"
#include "frame/containers/zc_dyn_array.h"
#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kExtinguisherChoicePanel;

/// Danger levels in the order of their index.
inline constexpr const wchar_t* kDangerItems[] = {L"严重危险级", L"中危险级", L"轻危险级"};

}  // namespace zwt

class ZcUiFireChildDialog : public CDialog {
 public:
  /// A row of the catalogue.
  using three = zwt::ExtinguisherModel;

  ZcUiFireChildDialog(const zwt::Rating& rating, std::int32_t fireClass, std::int32_t dangerIndex,
                      CDialog* parent = nullptr);

  std::int32_t DangerIndex() const { return dangerIndex_; }
  const CString& TotalText() const { return total_.text; }
  bool ListWasClicked() const { return listClicked_ != 0; }

 protected:
  void OnInitDialog() override;
  void OnCancel() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void FillExtinguisherCatalogue();
  void RefreshCatalogueList();
  void NormalizeTotalText();
  void ChooseKind();
  void ChooseDanger();
  void ComposeResult();

  std::int32_t kind_ = -1;
  zwt::TotalText total_;  // with the class, the minimum text and its number
  std::int32_t dangerIndex_;
  CString resultText_;
  ZcDynArray<three> handHeld_;
  ZcDynArray<three> trolley_;
  std::vector<zwt::ExtinguisherRow> rows_;  // as the list shows them
  std::int32_t ready_ = 0;
  std::int32_t listClicked_ = 0;
};
