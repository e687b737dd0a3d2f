// Table of drainage fixtures and the sums over it.
#include "drainage/drainage_fixtures.h"

#include <algorithm>

#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr DrainageFixture kFixtures[] = {
    {L"洗涤盆、污水盆", L"0.33", L"1.00", L"50"},
    {L"餐厅、厨房单格洗菜盆", L"0.67", L"2.00", L"50"},
    {L"餐厅、厨房双格洗菜盆", L"1", L"3.00", L"50"},
    {L"盥洗槽（每个水嘴）", L"0.33", L"1.00", L"75"},
    {L"洗手盆", L"0.1", L"0.3", L"50"},
    {L"洗脸盆", L"0.25", L"0.75", L"50"},
    {L"浴盆", L"1.0", L"3.0", L"50"},
    {L"淋浴器", L"0.15", L"0.45", L"50"},
    {L"大便器（冲洗水箱）", L"1.5", L"4.5", L"100"},
    {L"大便器（自闭式冲洗阀）", L"1.2", L"3.6", L"100"},
    {L"小便器", L"0.1", L"0.3", L"50"},
    {L"医用倒便器", L"1.5", L"4.5", L"100"},
    {L"大便槽(≤4个蹲位)", L"2.5", L"7.5", L"100"},
    {L"大便槽(>4个蹲位)", L"3.0", L"9.0", L"150"},
    {L"小便槽（每米长）", L"0.17", L"0.5", L"-"},
    {L"化验盆（无塞）", L"0.2", L"0.6", L"50"},
    {L"净身器", L"0.1", L"0.3", L"50"},
    {L"饮水器", L"0.05", L"0.15", L"50"},
    {L"家用洗衣机", L"0.5", L"1.5", L"50"},
};

const DrainageFixture* FindFixture(const CString& name) {
  const auto* found = std::find_if(std::begin(kFixtures), std::end(kFixtures),
                                   [&](const auto& fixture) { return name == fixture.name; });
  return found == std::end(kFixtures) ? nullptr : found;
}

}  // namespace

std::span<const DrainageFixture> DrainageFixtures() {
  return kFixtures;
}

FixtureTotals SumFixtures(const std::vector<ChosenFixture>& chosen, const FixtureTotals& before) {
  FixtureTotals totals;
  totals.maxDn = before.maxDn;
  for (const ChosenFixture& row : chosen) {
    const DrainageFixture* fixture = FindFixture(row.name);
    if (fixture == nullptr) continue;
    const std::int32_t count = _wtoi(row.count);
    const double flow = _wtof(fixture->flow);
    totals.equivalent += _wtof(fixture->equivalent) * count;
    totals.flux += flow * count;
    if (flow > totals.qmax) totals.qmax = flow;
    totals.maxDn = std::max(totals.maxDn, _wtoi(fixture->diameter));
  }
  return totals;
}

}  // namespace zwt
