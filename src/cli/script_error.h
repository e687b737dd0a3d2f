// The one error of a run: what could not be read or played, and where in the script it stands.
#pragma once

#include <string>
#include <string_view>

#include "host/runtime/command_stack.h"

namespace zwt {

/// what() is one line: the JSON pointer of the place, a colon, and what is wrong there. The script as a
/// whole, whose pointer is empty, is called "script".
class ScriptError : public CommandInterruption {
 public:
  ScriptError(const std::string& at, const std::string& problem)
      : CommandInterruption((at.empty() ? "script" : at) + ": " + problem), at_(at) {}

  /// JSON pointer (RFC 6901) of the place.
  const std::string& At() const { return at_; }

 private:
  std::string at_;
};

/// The pointer of a member or an item of what a pointer names.
std::string PointerTo(const std::string& parent, std::string_view key);
std::string PointerTo(const std::string& parent, std::size_t index);

}  // namespace zwt
