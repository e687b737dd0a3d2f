// What the module's library shows to the outside.
#include <array>
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace {

/// Names of the symbols that a library defines for others, as the system's own lister sees them.
std::set<std::string> DefinedSymbols(const std::string& library) {
  const std::string call = std::string(ZWT_NM) + " -D --defined-only --format=posix '" + library + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(call.c_str(), "r"), &pclose);
  std::string listing;
  std::array<char, 4096> chunk{};
  while (pipe != nullptr && std::fgets(chunk.data(), chunk.size(), pipe.get()) != nullptr)
    listing += chunk.data();
  std::set<std::string> names;
  std::istringstream lines(listing);
  for (std::string line; std::getline(lines, line);) names.insert(line.substr(0, line.find(' ')));
  return names;
}

TEST(ModuleSymbols, ExactlyTheTwoEntryPointsAreExported) {
  EXPECT_EQ(DefinedSymbols(ZWT_MODULE_FILE), (std::set<std::string>{"acrxEntryPoint", "acrxGetApiVersion"}));
}

TEST(ModuleSymbols, ListerSeesTheSymbolsOfAnOrdinaryLibrary) {
  const auto host = DefinedSymbols(std::string(ZWT_BINARY_DIR) + "/lib/libzwthost.so");
  EXPECT_TRUE(host.contains("g_pZaecLangSwitch"));
  EXPECT_GT(host.size(), 100U);
}

}  // namespace
