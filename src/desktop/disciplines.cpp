// Menus, their order and their pictures.
#include "desktop/disciplines.h"

namespace zwt {

namespace {

// A calendar with a drop: maximum day and hour.
constexpr const char* kMaxDay = R"(
<rect x="3" y="4.5" width="18" height="16.5" rx="2"/><path d="M3 9.5H21M8 2.5V6M16 2.5V6"/>
<path class="full" d="M12 11.2c2 2.6 2.9 3.7 2.9 5a2.9 2.9 0 0 1-5.8 0c0-1.3.9-2.4 2.9-5z"/>)";

// A tap with a drop: the flow of one section.
constexpr const char* kTap = R"(
<path d="M2.5 10H9V8.5h5V10h2.5a4.5 4.5 0 0 1 4.5 4.5V16H17v-1.5a.5.5 0 0 0-.5-.5H2.5z"/>
<path d="M11.5 8.5V5M8 4.5h7"/>
<path class="full" d="M19 17.5c1.2 1.6 1.7 2.2 1.7 3a1.7 1.7 0 0 1-3.4 0c0-.8.5-1.4 1.7-3z"/>)";

// Sliders: the data of branches.
constexpr const char* kSliders = R"(
<path d="M3 6H21M3 12H21M3 18H21"/>
<circle class="paper" cx="8" cy="6" r="2.2"/><circle class="paper" cx="15.5" cy="12" r="2.2"/>
<circle class="paper" cx="10" cy="18" r="2.2"/>)";

// A riser with branches, upwards.
constexpr const char* kRiser = R"(
<path d="M8 22V3M8 19H19M8 13H19M8 7H19"/><path d="M5.2 5.8 8 2.6l2.8 3.2"/>
<circle class="full" cx="19.5" cy="7" r="1.6"/><circle class="full" cx="19.5" cy="13" r="1.6"/>
<circle class="full" cx="19.5" cy="19" r="1.6"/>)";

// A stack with falling branches, downwards.
constexpr const char* kStack = R"(
<path d="M8 2V21M8 9.5 19 5M8 16.5 19 12"/><path d="M5.2 18.2 8 21.4l2.8-3.2"/>
<path d="M16.5 2.8h5v2.4a2.5 2.5 0 0 1-5 0zM16.5 9.8h5v2.4a2.5 2.5 0 0 1-5 0z"/>)";

// A ring with nodes.
constexpr const char* kRing = R"(
<rect x="4" y="6" width="16" height="12"/><path d="M12 6V18"/>
<circle class="full" cx="4" cy="6" r="1.8"/><circle class="full" cx="12" cy="6" r="1.8"/>
<circle class="full" cx="20" cy="6" r="1.8"/><circle class="full" cx="4" cy="18" r="1.8"/>
<circle class="full" cx="12" cy="18" r="1.8"/><circle class="full" cx="20" cy="18" r="1.8"/>)";

// A hydrant box with a nozzle and its jet.
constexpr const char* kHydrant = R"(
<rect x="2.5" y="6" width="10" height="15" rx="1"/><circle cx="7.5" cy="13.5" r="3"/>
<circle class="full" cx="7.5" cy="13.5" r=".9"/>
<path d="M12.5 10 15.5 8.5M16.5 4 22 2.8M17 7.5H22M16.5 11 22 12.2"/>)";

// An extinguisher.
constexpr const char* kExtinguisher = R"(
<path d="M7.5 22V11.5a4 4 0 0 1 8 0V22z"/><path d="M11.5 7.5V4.5M8.5 4.5h6.5M15 4.5 18 3M8.5 4.5C5.5 4.5
4.5 6.5 4.5 10"/><path d="M7.5 15h8"/>)";

// A thermometer and steam: hot water.
constexpr const char* kHotWater = R"(
<path d="M8 13.8V5a2.3 2.3 0 0 0-4.6 0v8.8a4 4 0 1 0 4.6 0z"/><path d="M5.7 8v8"/>
<circle class="full" cx="5.7" cy="17.3" r="1.6"/>
<path d="M13 20c-1.5-2 1.5-3.5 0-5.5s1.5-3.5 0-5.5M17 20c-1.5-2 1.5-3.5 0-5.5s1.5-3.5 0-5.5M21
20c-1.5-2 1.5-3.5 0-5.5s1.5-3.5 0-5.5"/>)";

// A tank on its legs.
constexpr const char* kTank = R"(
<rect x="3" y="4" width="18" height="13" rx="1"/><path d="M6 17v4M18 17v4"/>
<path class="full" d="M3 10c1.5-1.2 3-1.2 4.5 0s3 1.2 4.5 0 3-1.2 4.5 0 3 1.2 4.5 0v6.2a.8.8 0 0 1-.8.8H3.8a.8.8
0 0 1-.8-.8z"/>)";

// A pressure tank with its gauge.
constexpr const char* kPressureTank = R"(
<rect x="4" y="3" width="11" height="16" rx="5.5"/><path d="M9.5 19v3M6 22h7M4 12h11"/>
<circle class="paper" cx="19" cy="7" r="3.2"/><path d="M19 7l1.6-1.6M15 8.5h1.2"/>)";

// A basin in the ground.
constexpr const char* kPool = R"(
<path d="M1.5 6H4.5V20H19.5V6H22.5"/>
<path d="M7 10.5c1.2-1.2 2.3-1.2 3.5 0s2.3 1.2 3.5 0 2.3-1.2 3.5 0M7 15c1.2-1.2 2.3-1.2 3.5 0s2.3 1.2 3.5
0 2.3-1.2 3.5 0"/>)";

// A shield with a drop: civil air defence.
constexpr const char* kShield = R"(
<path d="M12 2.2 20 5v6.5c0 5-3.4 8.3-8 10.3-4.6-2-8-5.3-8-10.3V5z"/>
<path class="full" d="M12 7c2.2 2.9 3.2 4.1 3.2 5.6a3.2 3.2 0 0 1-6.4 0C8.8 11.1 9.8 9.9 12 7z"/>)";

constexpr CommandEntry kSupply[] = {
    {L"ZWTGRGS", kMaxDay}, {L"ZWTJDGS", kTap}, {L"ZWTGSCS", kSliders}, {L"ZWTGSJS", kRiser}};
constexpr CommandEntry kDrainage[] = {{L"ZWTPSJS", kStack}};
constexpr CommandEntry kFire[] = {{L"ZWTXFJS", kRing}, {L"ZWTXHS", kHydrant}, {L"ZWTMHQ", kExtinguisher}};
constexpr CommandEntry kHot[] = {{L"ZWTRSJS", kHotWater}};
constexpr CommandEntry kStorage[] = {
    {L"ZWTSXJS", kTank}, {L"ZWTQYSG", kPressureTank}, {L"ZWTZSC", kPool}, {L"ZWTRFSL", kShield}};

constexpr Discipline kDisciplines[] = {
    {.title = L"给水", .colour = 0xff1565c0, .commands = kSupply},
    {.title = L"排水", .colour = 0xff795548, .commands = kDrainage},
    {.title = L"消防", .colour = 0xffc62828, .commands = kFire},
    {.title = L"热水", .colour = 0xffd9730d, .commands = kHot},
    {.title = L"水箱水池", .colour = 0xff00796b, .commands = kStorage},
};

}  // namespace

std::span<const Discipline> Disciplines() {
  return kDisciplines;
}

}  // namespace zwt
