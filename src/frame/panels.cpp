// The list of panels.
#include "frame/panels.h"

#include "drainage/drainage_fixture_dialog.h"
#include "drainage/drainage_results_dialog.h"
#include "fire/calculating_dialog.h"
#include "fire/extinguisher_choice_dialog.h"
#include "fire/extinguisher_sizing_dialog.h"
#include "fire/hydrant_demand_dialog.h"
#include "fire/hydrant_jet_dialog.h"
#include "fire/hydrant_network_dialog.h"
#include "hotwater/cold_water_dialog.h"
#include "hotwater/heat_demand_dialog.h"
#include "hotwater/hot_water_fixtures_dialog.h"
#include "hotwater/hot_water_quota_dialog.h"
#include "hotwater/hourly_variation_dialog.h"
#include "storage/air_defence_dialog.h"
#include "storage/pressure_tank_dialog.h"
#include "storage/storage_pool_dialog.h"
#include "storage/tank_dialog.h"
#include "supply/branch_data_dialog.h"
#include "supply/design_flow_dialog.h"
#include "supply/equivalents_dialog.h"
#include "supply/inlet_diameter_dialog.h"
#include "supply/max_day_dialog.h"
#include "supply/quota_dialog.h"
#include "supply/supply_results_dialog.h"

namespace zwt {

std::span<const PanelTemplate* const> ModulePanels() {
  static constexpr const PanelTemplate* kPanels[] = {
      &kMaxDayPanel,
      &kQuotaPanel,
      &kInletDiameterPanel,
      &kEquivalentsPanel,
      &kDesignFlowPanel,
      &kBranchDataPanel,
      &kSupplyResultsPanel,
      &kDrainageResultsPanel,
      &kDrainageFixturePanel,
      &kHeatDemandPanel,
      &kHotWaterQuotaPanel,
      &kHourlyVariationPanel,
      &kColdWaterPanel,
      &kHotWaterFixturesPanel,
      &kAirDefencePanel,
      &kPressureTankPanel,
      &kTankPanel,
      &kHydrantNetworkPanel,
      &kHydrantDemandPanel,
      &kCalculatingPanel,
      &kHydrantJetPanel,
      &kExtinguisherSizingPanel,
      &kExtinguisherChoicePanel,
      &kStoragePoolPanel,
  };
  return kPanels;
}

}  // namespace zwt
