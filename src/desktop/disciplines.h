// The commands of the module by discipline, as menus and tool bar show them. What a command is called is not
// told here: its panel's template says it.
#pragma once

#include <QColor>
#include <span>

namespace zwt {

struct CommandEntry {
  const wchar_t* command;
  const char* icon;  // drawing on a square of 24, see icons.h
};

struct Discipline {
  const wchar_t* title;
  QRgb colour;  // of its icons
  std::span<const CommandEntry> commands;
};

std::span<const Discipline> Disciplines();

}  // namespace zwt
