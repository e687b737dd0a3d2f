// Small drawings for the tests, as bytes.
#pragma once

#include <string>
#include <string_view>

namespace drawing_texts {

inline std::string Section(std::string_view name, std::string_view body) {
  return "  0\nSECTION\n  2\n" + std::string(name) + "\n" + std::string(body) + "  0\nENDSEC\n";
}

inline std::string Header(std::string_view version, std::string_view more = {}) {
  return Section("HEADER", "  9\n$ACADVER\n  1\n" + std::string(version) + "\n" + std::string(more));
}

inline std::string CodePage(std::string_view name) {
  return "  9\n$DWGCODEPAGE\n  3\n" + std::string(name) + "\n";
}

constexpr std::string_view kEnd = "  0\nEOF\n";

/// A line with extended data of a pipe; handle may be empty.
inline std::string Pipe(std::string_view handle, std::string_view data = "1000\nKind\n1000\n0\n") {
  const std::string group = handle.empty() ? "" : "  5\n" + std::string(handle) + "\n";
  return "  0\nLINE\n" + group + "  8\n0\n 10\n0.0\n 20\n0.0\n 11\n0.0\n 21\n3000.0\n1001\nZWT_PIPE\n" +
         std::string(data);
}

/// An R12 drawing of entities alone.
inline std::string Entities(std::string_view body) {
  return Section("ENTITIES", body) + std::string(kEnd);
}

}  // namespace drawing_texts
