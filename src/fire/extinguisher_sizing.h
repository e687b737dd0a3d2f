// Sizing of portable extinguishers for one protected area: the required rating, the models that reach the
// smallest rating allowed, and the number of units for each placing point (GB 50140).
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "fire/extinguisher_catalogue.h"
#include "host/text/wide_text.h"

namespace zwt {

inline constexpr std::int32_t kFireClassA = 0;
inline constexpr std::int32_t kFireClassB = 1;
inline constexpr std::int32_t kHandHeldKind = 0;
inline constexpr std::int32_t kTrolleyKind = 1;

/// The smallest rating that one extinguisher may have, and the area that one unit of rating protects.
struct MinimumRating {
  double areaPerUnit;  // ㎡
  const wchar_t* text;
  std::int32_t number;
};

/// By fire class (0 is A, any other B) and danger from 0, the severest, to 2. Null for any other danger.
const MinimumRating* FindMinimumRating(std::int32_t fireClass, std::int32_t dangerIndex);

/// 0.9, 1.0, 0.7, 0.5 or 0.3 by the installed systems, index 0 to 4. No value for any other index.
std::optional<double> FacilityFactor(std::int32_t facilityIndex);

/// 1.0 for a building above ground, index 0, otherwise 1.3.
double BuildingFactor(std::int32_t buildingIndex);

/// The first panel's area as typed, and the choices of its lists.
struct ProtectedArea {
  CString areaText;  // ㎡; a text without a number counts as 0
  std::int32_t classIndex = 0;
  std::int32_t buildingIndex = 0;
  std::int32_t dangerIndex = 0;
  std::int32_t facilityIndex = 0;
};

struct Rating {
  double total = 0.0;
  CString totalText;  // such as 12.50A
  CString minimumText;
  std::int32_t minimumNumber = 0;
};

/// Rating that the area needs in all, and the minimum of one extinguisher. A choice outside its list gives a
/// total of 0 and no minimum.
Rating RequiredRating(const ProtectedArea& area);

/// A total text with what follows from it.
struct TotalText {
  CString text;
  std::int32_t fireClass = kFireClassA;
  CString minimumText;
  std::int32_t minimumNumber = 0;
};

/// Gives a total the minimum of its class and of a danger; an unknown danger leaves it as it is.
void SetMinimum(TotalText& total, std::int32_t dangerIndex);

/// Reads the class off a total text that the user has changed. A letter behind the number settles the class
/// and a small one becomes a capital, of several the first; a bare number gets two decimals and the letter of
/// the class held; a text that begins with its only letter changes nothing. The minimum follows the class and
/// the danger.
TotalText NormalizeTotalText(const TotalText& held, std::int32_t dangerIndex);

/// One row of the list of models, as it is shown.
struct ExtinguisherRow {
  CString type;
  CString spec;
  CString model;
  CString rating;  // against the current class
};

/// The models whose rating against the class reaches the minimum, in the order of the catalogue. None for a
/// class other than A and B.
std::vector<ExtinguisherRow> RefreshCatalogueList(std::span<const ExtinguisherModel> models,
                                                  std::int32_t fireClass, std::int32_t minimumNumber);

/// What the result control shows. Without a valid number of points it is a request for one and pointsRefused
/// is set.
struct ExtinguisherPlacing {
  CString text;
  bool pointsRefused = false;
  bool firstRowTaken = false;  // no row was selected, the first one counts and is to be selected
};

/// Rating and units for each of the points, for the selected row (-1: none). Counts are rounded up and never
/// below 2. With no row at all the rating is 0 and the count saturates.
ExtinguisherPlacing ComposeResult(const CString& pointsText, std::span<const ExtinguisherRow> rows,
                                  std::int32_t selectedRow, const CString& totalText, std::int32_t fireClass);

}  // namespace zwt
