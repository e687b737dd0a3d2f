// The edition is an attribute of the data file's root element.
#include "cli/code_edition.h"

#include <pugixml.hpp>

#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt {

std::string CodeEdition() {
  try {
    const std::string bytes = ReadWholeFile(PathFromText(GetMainDirectory() + L"Common2\\ZwtDataTable.xml"));
    pugi::xml_document data;
    data.load_buffer(bytes.data(), bytes.size());
    return data.document_element().attribute("edition").value();
  } catch (const FileError&) {
    return "";
  }
}

std::string VersionText() {
  const std::string edition = CodeEdition();
  return "zwtcal " ZWT_VERSION "\ndesign codes: " + (edition.empty() ? "no data file" : edition);
}

}  // namespace zwt
