// Reads the tables that tests compare constant tables with: one row a line, cells between bars, "#" for a
// comment.
#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt::test {

inline std::vector<CString> SplitRow(const CString& line) {
  std::vector<CString> cells{L""};
  for (const wchar_t c : line) {
    if (c == L'|') {
      cells.emplace_back();
    } else {
      cells.back() += c;
    }
  }
  return cells;
}

/// Rows of a file below tests; throws if it cannot be read.
inline std::vector<std::vector<CString>> ReadTable(const std::string& file) {
  std::ifstream stream(std::string(ZWT_SOURCE_DIR "/tests/") + file);
  if (!stream) throw std::runtime_error("cannot read " + file);
  std::vector<std::vector<CString>> rows;
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty() && line.front() != '#') rows.push_back(SplitRow(WideFromUtf8(line)));
  }
  return rows;
}

}  // namespace zwt::test
