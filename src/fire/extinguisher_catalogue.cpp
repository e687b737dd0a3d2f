// Catalogue rows. Some look unequal (45L models that are named 40, water models with and without a B rating):
// that is how the makers' designations stand.
#include "fire/extinguisher_catalogue.h"

#include <array>

namespace zwt {

std::span<const ExtinguisherModel> HandHeldExtinguishers() {
  static const std::array<ExtinguisherModel, 35> models{{
      {L"干粉(磷酸铵盐)", L"1kg", L"MF/ABC1", L"1A", L"21B"},
      {L"干粉(磷酸铵盐)", L"2kg", L"MF/ABC2", L"1A", L"21B"},
      {L"干粉(磷酸铵盐)", L"3kg", L"MF/ABC3", L"2A", L"34B"},
      {L"干粉(磷酸铵盐)", L"4kg", L"MF/ABC4", L"2A", L"55B"},
      {L"干粉(磷酸铵盐)", L"5kg", L"MF/ABC5", L"3A", L"89B"},
      {L"干粉(磷酸铵盐)", L"6kg", L"MF/ABC6", L"3A", L"89B"},
      {L"干粉(磷酸铵盐)", L"8kg", L"MF/ABC8", L"4A", L"144B"},
      {L"干粉(磷酸铵盐)", L"10kg", L"MF/ABC10", L"6A", L"144B"},
      {L"水型", L"3L", L"MS/Q3", L"1A", L""},
      {L"水型", L"3L", L"MS/T3", L"1A", L"55B"},
      {L"水型", L"6L", L"MS/Q6", L"1A", L""},
      {L"水型", L"6L", L"MS/T6", L"1A", L"55B"},
      {L"水型", L"9L", L"MS/Q9", L"2A", L""},
      {L"水型", L"9L", L"MS/T9", L"2A", L"89B"},
      {L"泡沫", L"3L", L"MP3、MP/AR3", L"1A", L"55B"},
      {L"泡沫", L"4L", L"MP4、MP/AR4", L"1A", L"55B"},
      {L"泡沫", L"6L", L"MP6、MP/AR6", L"1A", L"55B"},
      {L"泡沫", L"9L", L"MP9、MP/AR9", L"2A", L"89B"},
      {L"干粉(碳酸氢钠)", L"1kg", L"MF1", L"", L"21B"},
      {L"干粉(碳酸氢钠)", L"2kg", L"MF2", L"", L"21B"},
      {L"干粉(碳酸氢钠)", L"3kg", L"MF3", L"", L"34B"},
      {L"干粉(碳酸氢钠)", L"4kg", L"MF4", L"", L"55B"},
      {L"干粉(碳酸氢钠)", L"5kg", L"MF5", L"", L"89B"},
      {L"干粉(碳酸氢钠)", L"6kg", L"MF6", L"", L"89B"},
      {L"干粉(碳酸氢钠)", L"8kg", L"MF8", L"", L"144B"},
      {L"干粉(碳酸氢钠)", L"10kg", L"MF10", L"", L"144B"},
      {L"卤代烷(1211)", L"1kg", L"MY1", L"", L"21B"},
      {L"卤代烷(1211)", L"2kg", L"MY2", L"0.5A", L"21B"},
      {L"卤代烷(1211)", L"3kg", L"MY3", L"0.5A", L"34B"},
      {L"卤代烷(1211)", L"4kg", L"MY4", L"1A", L"34B"},
      {L"卤代烷(1211)", L"6kg", L"MY6", L"1A", L"55B"},
      {L"二氧化碳", L"2kg", L"MT2", L"", L"21B"},
      {L"二氧化碳", L"3kg", L"MT3", L"", L"21B"},
      {L"二氧化碳", L"5kg", L"MT5", L"", L"34B"},
      {L"二氧化碳", L"7kg", L"MT7", L"", L"55B"},
  }};
  return models;
}

std::span<const ExtinguisherModel> TrolleyExtinguishers() {
  static const std::array<ExtinguisherModel, 24> models{{
      {L"干粉(磷酸铵盐)", L"20kg", L"MFT/ABC20", L"6A", L"183B"},
      {L"干粉(磷酸铵盐)", L"50kg", L"MFT/ABC50", L"8A", L"297B"},
      {L"干粉(磷酸铵盐)", L"100kg", L"MFT/ABC100", L"10A", L"297B"},
      {L"干粉(磷酸铵盐)", L"125kg", L"MFT/ABC125", L"10A", L"297B"},
      {L"水型", L"20L", L"MST20", L"4A", L""},
      {L"水型", L"45L", L"MST40", L"4A", L""},
      {L"水型", L"60L", L"MST60", L"4A", L""},
      {L"水型", L"125L", L"MST125", L"6A", L""},
      {L"泡沫", L"20L", L"MPT20、MPT/AR20", L"4A", L"113B"},
      {L"泡沫", L"45L", L"MPT40、MPT/AR40", L"4A", L"144B"},
      {L"泡沫", L"60L", L"MPT60、MPT/AR60", L"4A", L"233B"},
      {L"泡沫", L"125L", L"MPT125、MPT/AR125", L"6A", L"297B"},
      {L"干粉(碳酸氢钠)", L"20kg", L"MFT20", L"", L"183B"},
      {L"干粉(碳酸氢钠)", L"50kg", L"MFT50", L"", L"297B"},
      {L"干粉(碳酸氢钠)", L"100kg", L"MFT100", L"", L"297B"},
      {L"干粉(碳酸氢钠)", L"125kg", L"MFT125", L"", L"297B"},
      {L"卤代烷(1211)", L"10kg", L"MYT10", L"", L"70B"},
      {L"卤代烷(1211)", L"20kg", L"MYT20", L"", L"144B"},
      {L"卤代烷(1211)", L"30kg", L"MYT30", L"", L"183B"},
      {L"卤代烷(1211)", L"50kg", L"MYT50", L"", L"297B"},
      {L"二氧化碳", L"10kg", L"MTT10", L"", L"55B"},
      {L"二氧化碳", L"20kg", L"MTT20", L"", L"70B"},
      {L"二氧化碳", L"30kg", L"MTT30", L"", L"113B"},
      {L"二氧化碳", L"50kg", L"MTT50", L"", L"183B"},
  }};
  return models;
}

}  // namespace zwt
