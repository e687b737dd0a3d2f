// Ratings, letters and the result text of the extinguisher sizing.
#include "fire/extinguisher_sizing.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr std::array<std::array<MinimumRating, 3>, 2> kMinimumRatings{{
    {{{50.0, L"3A", 3}, {75.0, L"2A", 2}, {100.0, L"1A", 1}}},
    {{{0.5, L"89B", 89}, {1.0, L"55B", 55}, {1.5, L"21B", 21}}},
}};

// The second entry, nothing installed, is the largest: the list is not in the order of the factors.
constexpr std::array<double, 5> kFacilityFactors{0.9, 1.0, 0.7, 0.5, 0.3};

const wchar_t* ClassLetter(std::int32_t fireClass) {
  return fireClass == kFireClassA ? L"A" : L"B";
}

bool StandsBehindFirst(std::size_t position) {
  return position != CString::npos && position > 0;
}

// Makes the letter of a class behind a number a capital. False if none stands there.
bool RaiseLetter(CString& text, wchar_t small, wchar_t capital) {
  const std::size_t position = text.find(small);
  if (!StandsBehindFirst(position)) return StandsBehindFirst(text.find(capital));
  text[position] = capital;
  return true;
}

bool ReachesMinimum(const CString& rating, wchar_t letter, std::int32_t minimumNumber) {
  const std::size_t position = rating.find(letter);
  if (position == 0) return false;
  return minimumNumber <= _wtof(rating.substr(0, position));
}

struct UnitCount {
  std::int32_t count;
  const wchar_t* limitNote;
  const wchar_t* minimumNote;
};

UnitCount CountUnits(double units) {
  UnitCount result{2, L"", L""};
  if (units > 5.0) result.limitNote = L"(注:每个设置点的灭火数量不宜多于 5 具)";
  if (units >= 2.0) {
    result.count = ToInt(std::ceil(units));
  } else {
    result.minimumNote = L"(根据:一个计算单元内的配置的灭火器数量不得少于 2 具)";
  }
  return result;
}

}  // namespace

const MinimumRating* FindMinimumRating(std::int32_t fireClass, std::int32_t dangerIndex) {
  if (dangerIndex < 0 || dangerIndex > 2) return nullptr;
  return &kMinimumRatings[fireClass == kFireClassA ? 0U : 1U][static_cast<std::size_t>(dangerIndex)];
}

std::optional<double> FacilityFactor(std::int32_t facilityIndex) {
  if (facilityIndex < 0 || facilityIndex >= static_cast<std::int32_t>(kFacilityFactors.size())) {
    return std::nullopt;
  }
  return kFacilityFactors[static_cast<std::size_t>(facilityIndex)];
}

double BuildingFactor(std::int32_t buildingIndex) {
  return buildingIndex == 0 ? 1.0 : 1.3;
}

Rating RequiredRating(const ProtectedArea& area) {
  Rating rating;
  const MinimumRating* minimum = FindMinimumRating(area.classIndex, area.dangerIndex);
  const std::optional<double> facility = FacilityFactor(area.facilityIndex);
  if (minimum != nullptr && facility) {
    rating.total =
        *facility * BuildingFactor(area.buildingIndex) * _wtof(area.areaText) / minimum->areaPerUnit;
    rating.minimumText = minimum->text;
    rating.minimumNumber = minimum->number;
  }
  rating.totalText = FormatFixed(rating.total, 2) + ClassLetter(area.classIndex);
  return rating;
}

void SetMinimum(TotalText& total, std::int32_t dangerIndex) {
  const MinimumRating* minimum = FindMinimumRating(total.fireClass, dangerIndex);
  if (minimum == nullptr) return;
  total.minimumText = minimum->text;
  total.minimumNumber = minimum->number;
}

TotalText NormalizeTotalText(const TotalText& held, std::int32_t dangerIndex) {
  TotalText total = held;
  if (RaiseLetter(total.text, L'a', L'A')) {
    total.fireClass = kFireClassA;
  } else if (RaiseLetter(total.text, L'b', L'B')) {
    total.fireClass = kFireClassB;
  } else if (total.text.find_first_of(L"aAbB") == CString::npos) {
    if (total.fireClass == kFireClassA || total.fireClass == kFireClassB) {
      total.text = FormatFixed(_wtof(total.text), 2) + ClassLetter(total.fireClass);
    }
  } else {
    return held;
  }
  SetMinimum(total, dangerIndex);
  return total;
}

std::vector<ExtinguisherRow> RefreshCatalogueList(std::span<const ExtinguisherModel> models,
                                                  std::int32_t fireClass, std::int32_t minimumNumber) {
  std::vector<ExtinguisherRow> rows;
  if (fireClass != kFireClassA && fireClass != kFireClassB) return rows;
  for (const ExtinguisherModel& model : models) {
    const CString& rating = fireClass == kFireClassA ? model.ratingA : model.ratingB;
    if (!ReachesMinimum(rating, *ClassLetter(fireClass), minimumNumber)) continue;
    rows.push_back({model.type, model.spec, model.model, rating});
  }
  return rows;
}

ExtinguisherPlacing ComposeResult(const CString& pointsText, std::span<const ExtinguisherRow> rows,
                                  std::int32_t selectedRow, const CString& totalText,
                                  std::int32_t fireClass) {
  const std::int32_t points = _wtoi(pointsText);
  if (points < 1) return {L"请正确输入配置点的个数", true, false};
  const bool selected = selectedRow >= 0 && selectedRow < static_cast<std::int32_t>(rows.size());
  const std::size_t index = selected ? static_cast<std::size_t>(selectedRow) : 0;
  const ExtinguisherRow row = index < rows.size() ? rows[index] : ExtinguisherRow{};

  const double amount = _wtof(totalText) / points;
  const UnitCount units = CountUnits(amount / _wtof(row.rating));
  CString text = L"  每个配置点的配置量为\t" + FormatFixed(amount, 2) + ClassLetter(fireClass);
  text += L"\r\n  所选的灭火器型号为\t\t" + row.model + (selected ? L"" : L"(取第一种灭火器)");
  text += L"\r\n  每个配置点的灭火器数量为\t" + ZwtNum2Str(units.count);
  text += CString(L"\r\n  ") + units.limitNote + units.minimumNote;
  return {text, false, !selected};
}

}  // namespace zwt
