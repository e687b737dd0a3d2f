// Reading and writing the parts of a word processor document.
#include "host/report/word_document.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "host/report/report_error.h"
#include "host/report/word_markup.h"

namespace zwt {

namespace {

constexpr unsigned kKeepAll = pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_declaration |
                              pugi::parse_pi | pugi::parse_comments | pugi::parse_doctype;

// Names of the paragraph styles that a template gives the cells of a table.
constexpr const char* kHeaderStyleName = "计算书表头";
constexpr const char* kTextStyleName = "计算书文字";
constexpr const char* kNumberStyleName = "计算书数字";

pugi::xml_document Parse(const DocumentArchive::Part& part) {
  pugi::xml_document xml;
  const auto result = xml.load_buffer(part.bytes.data(), part.bytes.size(), kKeepAll, pugi::encoding_utf8);
  if (!result) throw ReportError("word processor document: part " + part.name + ": " + result.description());
  return xml;
}

bool EndsWith(const std::string& text, const char* end) {
  const std::size_t length = std::strlen(end);
  return text.size() >= length && text.compare(text.size() - length, length, end) == 0;
}

/// The folder of a part, with its separator; empty for the top.
std::string FolderOf(const std::string& part) {
  return part.substr(0, part.rfind('/') + 1);
}

/// The parts that a part points to with relations of one type, absolute or beside it.
std::vector<std::string> RelatedParts(const DocumentArchive& archive, const std::string& part,
                                      const char* type) {
  std::vector<std::string> related;
  const std::string folder = FolderOf(part);
  const auto* relations = archive.Find(folder + "_rels/" + part.substr(folder.size()) + ".rels");
  if (relations == nullptr) return related;
  const pugi::xml_document xml = Parse(*relations);
  for (const pugi::xml_node relation : xml.child("Relationships")) {
    if (!EndsWith(relation.attribute("Type").value(), type)) continue;
    const std::string target = relation.attribute("Target").value();
    related.push_back(target.starts_with('/') ? target.substr(1) : folder + target);
  }
  std::sort(related.begin(), related.end());
  return related;
}

/// The identifier of the style of a kind with a name, empty if the template has none.
std::string StyleNamed(pugi::xml_node styles, const char* name) {
  for (const pugi::xml_node style : styles.children("w:style")) {
    if (std::strcmp(style.child("w:name").attribute("w:val").value(), name) == 0) {
      return style.attribute("w:styleId").value();
    }
  }
  return {};
}

/// The table style that a template brings: its own, or else the plain grid; empty if it has neither.
std::string TableStyleOf(pugi::xml_node styles) {
  for (const pugi::xml_node style : styles.children("w:style")) {
    const bool isTable = std::strcmp(style.attribute("w:type").value(), "table") == 0;
    if (isTable && style.attribute("w:customStyle").as_bool()) return style.attribute("w:styleId").value();
  }
  return StyleNamed(styles, "Table Grid");
}

}  // namespace

WordDocument::WordDocument(std::string_view bytes) : archive_(bytes) {
  LoadStories();
  LoadStyles();
}

void WordDocument::LoadStories() {
  const auto bodies = RelatedParts(archive_, "", "/officeDocument");
  if (bodies.size() != 1) throw ReportError("word processor document: no text in it");
  std::vector<std::string> names = bodies;
  for (const char* type : {"/header", "/footer"}) {
    for (const std::string& name : RelatedParts(archive_, bodies.front(), type)) names.push_back(name);
  }
  for (const std::string& name : names) {
    const auto* part = archive_.Find(name);
    if (part == nullptr) throw ReportError("word processor document: part " + name + " is missing");
    stories_.push_back(std::make_unique<StoryPart>(StoryPart{name, Parse(*part)}));
  }
  if (!stories_.front()->xml.child("w:document").child("w:body")) {
    throw ReportError("word processor document: no text in it");
  }
  for (const auto& story : stories_) CollectBookmarks(story->xml.root());
}

void WordDocument::LoadStyles() {
  const auto parts = RelatedParts(archive_, stories_.front()->name, "/styles");
  const auto* part = parts.empty() ? nullptr : archive_.Find(parts.front());
  if (part == nullptr) return;
  const pugi::xml_document xml = Parse(*part);
  const pugi::xml_node styles = xml.child("w:styles");
  tableStyle_ = TableStyleOf(styles);
  headerStyle_ = StyleNamed(styles, kHeaderStyleName);
  textStyle_ = StyleNamed(styles, kTextStyleName);
  numberStyle_ = StyleNamed(styles, kNumberStyleName);
}

std::string WordDocument::Bytes() const {
  DocumentArchive filled = archive_;
  for (const auto& story : stories_) {
    std::ostringstream text;
    story->xml.save(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    filled.Put(story->name, text.str());
  }
  return filled.Pack();
}

}  // namespace zwt
