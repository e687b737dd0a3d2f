// The table of commands. Each function comes from the header of the room that its panel lives in.
#include "frame/commands.h"

#include "drainage/drainage_results_dialog.h"
#include "fire/extinguisher_sizing_dialog.h"
#include "fire/hydrant_jet_dialog.h"
#include "fire/hydrant_network_dialog.h"
#include "hotwater/heat_demand_dialog.h"
#include "storage/air_defence_dialog.h"
#include "storage/pressure_tank_dialog.h"
#include "storage/storage_pool_dialog.h"
#include "storage/tank_dialog.h"
#include "supply/branch_data_dialog.h"
#include "supply/design_flow_dialog.h"
#include "supply/max_day_dialog.h"
#include "supply/supply_results_dialog.h"

namespace zwt {

namespace {

constexpr int kFlags = 0;

// One row on a line, so that a change of one row shows as one.
// clang-format off
constexpr ZcCmdTable kCommands[] = {
    {L"ZWTGRGS", &RunMaxDayCommand, kFlags},
    {L"ZWTJDGS", &RunDesignFlowCommand, kFlags},
    {L"ZWTGSCS", &RunBranchDataCommand, kFlags},
    {L"ZWTGSJS", &RunSupplyCommand, kFlags},
    {L"ZWTPSJS", &RunDrainageCommand, kFlags},
    {L"ZWTXFJS", &RunHydrantNetworkCommand, kFlags},
    {L"ZWTRSJS", &RunHeatDemandCommand, kFlags},
    {L"ZWTRFSL", &RunAirDefenceCommand, kFlags},
    {L"ZWTQYSG", &RunPressureTankCommand, kFlags},
    {L"ZWTSXJS", &RunTankCommand, kFlags},
    {L"ZWTXHS", &RunHydrantJetCommand, kFlags},
    {L"ZWTMHQ", &RunExtinguisherCommand, kFlags},
    {L"ZWTZSC", &RunStoragePoolCommand, kFlags},
};
// clang-format on
static_assert(std::size(kCommands) == 13);

}  // namespace

std::span<const ZcCmdTable> CommandTable() {
  return kCommands;
}

}  // namespace zwt
