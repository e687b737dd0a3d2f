// Tables: made in the template's style, placed at a bookmark or at the end.
#include <algorithm>

#include "host/report/word_document.h"
#include "host/report/word_markup.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

/// Width between the page margins, in twentieths of a point; that of an A4 page with usual margins where the
/// template does not say.
int TextWidth(pugi::xml_node body) {
  constexpr int kUsualWidth = 8306;
  const pugi::xml_node section = body.child("w:sectPr");
  const int page = section.child("w:pgSz").attribute("w:w").as_int();
  const pugi::xml_node margins = section.child("w:pgMar");
  const int width = page - margins.attribute("w:left").as_int() - margins.attribute("w:right").as_int();
  return page > 0 && width > 0 ? width : kUsualWidth;
}

void AddBorders(pugi::xml_node properties) {
  pugi::xml_node borders = properties.append_child("w:tblBorders");
  for (const char* side : {"w:top", "w:left", "w:bottom", "w:right", "w:insideH", "w:insideV"}) {
    pugi::xml_node border = borders.append_child(side);
    border.append_attribute("w:val") = "single";
    border.append_attribute("w:sz") = 4;
  }
}

pugi::xml_node AddValue(pugi::xml_node parent, const char* name, const char* value) {
  pugi::xml_node node = parent.append_child(name);
  node.append_attribute("w:val") = value;
  return node;
}

/// A table holds its place between two paragraphs: one must follow it.
void CloseWithParagraph(pugi::xml_node table) {
  if (!IsNamed(table.next_sibling(), "w:p")) table.parent().insert_child_after("w:p", table);
}

}  // namespace

bool WordTable::HasCell(int row, int column) const {
  return row >= 1 && row <= static_cast<int>(cells.size()) && column >= 1 &&
         column <= static_cast<int>(cells[static_cast<std::size_t>(row - 1)].size());
}

WordTable WordDocument::AddTable(int bookmark, int rows, int columns) {
  if (bookmark < 1 || bookmark > BookmarkCount() || rows < 1 || columns < 1) return {};
  pugi::xml_node paragraph = ParagraphOf(bookmarks_[static_cast<std::size_t>(bookmark - 1)].start);
  if (!paragraph) return AddTableAtEnd(rows, columns);
  pugi::xml_node around = paragraph.parent();
  const bool behind = ShowsAnything(paragraph);
  const pugi::xml_node table =
      behind ? around.insert_child_after("w:tbl", paragraph) : around.insert_child_before("w:tbl", paragraph);
  CloseWithParagraph(table);
  return BuildTable(table, rows, columns);
}

WordTable WordDocument::AddTableAtEnd(int rows, int columns) {
  if (rows < 1 || columns < 1) return {};
  pugi::xml_node body = stories_.front()->xml.child("w:document").child("w:body");
  const pugi::xml_node section = body.child("w:sectPr");
  const pugi::xml_node table =
      section ? body.insert_child_before("w:tbl", section) : body.append_child("w:tbl");
  CloseWithParagraph(table);
  return BuildTable(table, rows, columns);
}

WordTable WordDocument::BuildTable(pugi::xml_node table, int rows, int columns) const {
  pugi::xml_node properties = table.append_child("w:tblPr");
  if (!tableStyle_.empty()) AddValue(properties, "w:tblStyle", tableStyle_.c_str());
  pugi::xml_node width = properties.append_child("w:tblW");
  width.append_attribute("w:w") = 5000;
  width.append_attribute("w:type") = "pct";
  if (tableStyle_.empty()) AddBorders(properties);
  pugi::xml_node look = AddValue(properties, "w:tblLook", "0020");
  look.append_attribute("w:firstRow") = 1;
  const int columnWidth = TextWidth(stories_.front()->xml.child("w:document").child("w:body")) / columns;
  pugi::xml_node grid = table.append_child("w:tblGrid");
  for (int column = 0; column < columns; ++column) {
    grid.append_child("w:gridCol").append_attribute("w:w") = columnWidth;
  }
  WordTable made;
  made.cells.resize(static_cast<std::size_t>(rows));
  for (auto& cells : made.cells) {
    pugi::xml_node row = table.append_child("w:tr");
    pugi::xml_node rowProperties = row.append_child("w:trPr");
    rowProperties.append_child("w:cantSplit");
    if (&cells == &made.cells.front()) rowProperties.append_child("w:tblHeader");
    for (int column = 0; column < columns; ++column) {
      pugi::xml_node cell = row.append_child("w:tc");
      pugi::xml_node cellProperties = cell.append_child("w:tcPr");
      pugi::xml_node cellWidth = cellProperties.append_child("w:tcW");
      cellWidth.append_attribute("w:w") = columnWidth;
      cellWidth.append_attribute("w:type") = "dxa";
      AddValue(cellProperties, "w:vAlign", "center");
      cell.append_child("w:p");
      cells.push_back(cell);
    }
  }
  return made;
}

void WordDocument::SetCell(const WordTable& table, int row, int column, const std::string& text) {
  if (!table.HasCell(row, column)) return;
  pugi::xml_node cell = table.cells[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
  cell.remove_child("w:p");
  pugi::xml_node paragraph = cell.append_child("w:p");
  double number = 0;
  const bool isNumber = ParseNumber(WideFromUtf8(text), number);
  const std::string& style = row == 1 ? headerStyle_ : isNumber ? numberStyle_ : textStyle_;
  if (!style.empty()) AddValue(paragraph.append_child("w:pPr"), "w:pStyle", style.c_str());
  if (!text.empty()) FillRun(paragraph.append_child("w:r"), text);
}

}  // namespace zwt
