// The models of portable extinguishers with their ratings, hand-held and on trolleys: a constant table.
#pragma once

#include <span>

#include "host/text/wide_text.h"

namespace zwt {

/// One model. A rating is a number with its letter behind it, empty if the model is of no use against that
/// class of fire.
struct ExtinguisherModel {
  CString type;     // agent
  CString spec;     // charge with its unit
  CString model;    // designation; two are joined with "、"
  CString ratingA;  // "0.5A" to "10A"
  CString ratingB;  // "21B" to "297B"
};

/// The 35 hand-held models in the order of display.
std::span<const ExtinguisherModel> HandHeldExtinguishers();

/// The 24 trolley models in the order of display.
std::span<const ExtinguisherModel> TrolleyExtinguishers();

}  // namespace zwt
