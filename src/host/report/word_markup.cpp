// Walking and writing word processing markup.
#include "host/report/word_markup.h"

#include <cstring>

namespace zwt {

namespace {

void AddText(pugi::xml_node run, const std::string& text) {
  if (text.empty()) return;
  pugi::xml_node piece = run.append_child("w:t");
  piece.append_attribute("xml:space") = "preserve";
  piece.text().set(text.c_str());
}

}  // namespace

bool IsNamed(pugi::xml_node node, const char* name) {
  return std::strcmp(node.name(), name) == 0;
}

pugi::xml_node NextBehind(pugi::xml_node node) {
  while (node && !node.next_sibling()) node = node.parent();
  return node ? node.next_sibling() : node;
}

pugi::xml_node NextInText(pugi::xml_node node) {
  return node.first_child() ? node.first_child() : NextBehind(node);
}

pugi::xml_node ParagraphOf(pugi::xml_node node) {
  for (pugi::xml_node around = node.parent(); around; around = around.parent()) {
    if (IsNamed(around, "w:p")) return around;
  }
  for (pugi::xml_node behind = NextInText(node); behind; behind = NextInText(behind)) {
    if (IsNamed(behind, "w:p")) return behind;
  }
  return {};
}

bool ShowsAnything(pugi::xml_node paragraph) {
  for (const char* shown : {"w:t", "w:drawing", "w:pict", "w:br", "w:fldSimple", "w:object"}) {
    const std::string query = std::string(".//") + shown;
    if (paragraph.select_node(query.c_str())) return true;
  }
  return false;
}

void FillRun(pugi::xml_node run, const std::string& text) {
  std::string piece;
  for (const char c : text) {
    const bool control = static_cast<unsigned char>(c) < 0x20;
    if (!control) {
      piece += c;
      continue;
    }
    if (c != '\n' && c != '\t') continue;
    AddText(run, piece);
    piece.clear();
    run.append_child(c == '\n' ? "w:br" : "w:tab");
  }
  AddText(run, piece);
}

}  // namespace zwt
