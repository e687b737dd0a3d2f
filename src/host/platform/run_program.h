// Running another program to its end, as for converting a document.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zwt {

/// The program of that name on the search path, if there is one.
std::optional<std::filesystem::path> FindProgram(const std::string& name);

/// Runs a program with arguments (UTF-8), its output thrown away, and waits for its end. Gives its exit
/// status, or -1 if it could not be started, was killed, or took longer than allowed (it is then ended).
int RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
               std::chrono::seconds allowed);

}  // namespace zwt
