// Pressure tank formulas and the order in which bad fields are found.
#include "storage/pressure_tank.h"

#include <initializer_list>

#include "host/text/number_text.h"

namespace zwt {
namespace {

struct TypedField {
  PressureTankField field;
  const CString* text;
};

bool IsBad(const CString& text) {
  return text.empty() || _wtof(text) < 0.0;
}

// Moves the focus to the first bad field; false if there is one.
bool CheckFields(std::initializer_list<TypedField> fields, PressureTankResult& result) {
  for (const TypedField& typed : fields) {
    if (!IsBad(*typed.text)) continue;
    result.focus.push_back(typed.field);
    return false;
  }
  return true;
}

void ComputeVolumes(const PressureTankInput& input, double pressureRatio, PressureTankResult& result) {
  if (!CheckFields({{PressureTankField::SafetyFactor, &input.safetyFactor},
                    {PressureTankField::PumpFlow, &input.pumpFlow},
                    {PressureTankField::PumpStarts, &input.pumpStarts},
                    {PressureTankField::VolumeFactor, &input.volumeFactor}},
                   result)) {
    return;
  }
  const double regulating =
      RegulatingVolume(_wtof(input.safetyFactor), _wtof(input.pumpFlow), _wtof(input.pumpStarts));
  const double total = PressureTankVolume(_wtof(input.volumeFactor), regulating, pressureRatio);
  result.regulatingVolume = FormatFixed(regulating, 3);
  result.totalVolume = FormatFixed(total, 3);
}

void ComputePressures(const PressureTankInput& input, double pressureRatio, PressureTankResult& result) {
  if (!CheckFields({{PressureTankField::HeightDifference, &input.heightDifference},
                    {PressureTankField::HeadLoss, &input.headLoss},
                    {PressureTankField::OutletHead, &input.outletHead}},
                   result)) {
    return;
  }
  const double lowest =
      LowestPressure(_wtof(input.heightDifference), _wtof(input.headLoss), _wtof(input.outletHead));
  result.lowestPressure = FormatFixed(lowest, 2);
  result.highestPressure = FormatFixed(HighestPressure(lowest, pressureRatio), 2);
}

}  // namespace

double RegulatingVolume(double safetyFactor, double pumpFlow, double startsPerHour) {
  return safetyFactor * pumpFlow * 3600.0 / (4.0 * startsPerHour * 1000.0);
}

double PressureTankVolume(double volumeFactor, double regulatingVolume, double pressureRatio) {
  return volumeFactor * regulatingVolume / (1.0 - pressureRatio);
}

double LowestPressure(double heightDifference, double headLoss, double outletHead) {
  return (heightDifference + headLoss + outletHead) / 100.0;
}

double HighestPressure(double lowestPressure, double pressureRatio) {
  return (lowestPressure + 0.098) / pressureRatio - 0.098;
}

PressureTankResult ComputePressureTank(const PressureTankInput& input) {
  PressureTankResult result;
  const double pressureRatio = _wtof(input.pressureRatio);
  if (pressureRatio <= 0.0 || pressureRatio >= 1.0 || input.pressureRatio.empty()) {
    result.focus.push_back(PressureTankField::PressureRatio);
    return result;
  }
  ComputeVolumes(input, pressureRatio, result);
  ComputePressures(input, pressureRatio, result);
  return result;
}

}  // namespace zwt
