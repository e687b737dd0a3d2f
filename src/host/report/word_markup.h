// Small pieces of word processing markup that bookmarks and tables share.
#pragma once

#include <string>

#include <pugixml.hpp>

namespace zwt {

/// The next node behind this one in the order of the text, going into children; null at the end of the tree.
pugi::xml_node NextInText(pugi::xml_node node);
/// The same without going into children.
pugi::xml_node NextBehind(pugi::xml_node node);

/// The paragraph around a node, or else the first one behind it; null if there is none.
pugi::xml_node ParagraphOf(pugi::xml_node node);

/// Whether a paragraph shows anything: text, pictures, breaks.
bool ShowsAnything(pugi::xml_node paragraph);

/// Fills a run with text: line feeds become line breaks, tabs tabs; characters that documents cannot hold are
/// dropped.
void FillRun(pugi::xml_node run, const std::string& text);

bool IsNamed(pugi::xml_node node, const char* name);

}  // namespace zwt
