// Names alone: what the materials are good for is the calculations' business.
#include "cli/material_names.h"

#include <pugixml.hpp>

#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt {

std::optional<std::vector<CString>> MaterialNames() {
  try {
    const std::string bytes = ReadWholeFile(PathFromText(GetMainDirectory() + L"Common2\\ZwtMaterials.xml"));
    pugi::xml_document file;
    if (!file.load_buffer(bytes.data(), bytes.size())) return std::nullopt;
    std::vector<CString> names;
    for (const pugi::xml_node& material : file.child("Materials").children("Material")) {
      names.push_back(WideFromUtf8(material.attribute("Name").value()));
    }
    if (!file.child("Materials")) return std::nullopt;
    return names;
  } catch (const FileError&) {
    return std::nullopt;
  }
}

}  // namespace zwt
