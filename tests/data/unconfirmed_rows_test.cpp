// The rows that carry the mark of an unconfirmed figure, and the list of them in the documentation.
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data_file_text.h"

namespace {

using zwt::test::Attribute;
using zwt::test::DataFileText;
using zwt::test::Elements;
using zwt::test::Is;
using zwt::test::IsMark;
using zwt::test::IsMarked;

struct ListedRow {
  std::string place;  // table or material
  std::string item;   // row or size
  std::vector<std::string> cells;
};

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(Trimmed(part));
  return parts;
}

ListedRow ListedIn(const std::string& line) {
  const std::vector<std::string> parts = Split(line, '|');
  ListedRow row{.place = parts.at(1), .item = parts.at(2), .cells = {}};
  for (std::size_t i = 3; i < parts.size(); ++i) {
    for (const std::string& cell : Split(parts[i], ',')) row.cells.push_back(cell);
  }
  return row;
}

/// The rows of the table below a heading of the page.
std::vector<ListedRow> RowsInPage(const std::string& heading) {
  std::ifstream page(ZWT_SOURCE_DIR "/docs/data-files.md");
  std::string line;
  while (std::getline(page, line) && line != heading) continue;
  std::vector<ListedRow> rows;
  int tableLines = 0;
  while (std::getline(page, line) && line.rfind("#", 0) != 0) {
    if (line.rfind("|", 0) == 0 && ++tableLines > 2) rows.push_back(ListedIn(line));
  }
  return rows;
}

struct MarkedRow {
  std::string place;
  std::string item;
  pugi::xml_node element;
};

void CollectRows(const pugi::xml_node& parent, const std::string& place, const std::string& groups,
                 std::vector<MarkedRow>& rows) {
  for (const pugi::xml_node& child : Elements(parent)) {
    const std::string name = Attribute(child, "Name");
    if (Is(child, "Table")) {
      CollectRows(child, place.empty() ? name : place + "/" + name, "", rows);
    } else if (Is(child, "Group")) {
      CollectRows(child, place, groups + name + " / ", rows);
    } else if (IsMarked(child)) {
      rows.push_back({place, name.empty() ? "M " + Attribute(child, "M") : groups + name, child});
    }
  }
}

std::vector<MarkedRow> MarkedTableRows(const DataFileText& file) {
  std::vector<MarkedRow> rows;
  CollectRows(file.Outer(), "", "", rows);
  return rows;
}

std::vector<MarkedRow> MarkedMaterials(const DataFileText& file) {
  std::vector<MarkedRow> rows;
  for (const pugi::xml_node& material : Elements(file.Outer())) {
    const std::string name = Attribute(material, "Name");
    if (IsMarked(material)) rows.push_back({name, "-", material});
    for (const pugi::xml_node& size : Elements(material)) {
      if (IsMarked(size)) rows.push_back({name, "DN " + Attribute(size, "DN"), size});
    }
  }
  return rows;
}

void ExpectSame(const std::vector<ListedRow>& listed, const std::vector<MarkedRow>& marked) {
  ASSERT_EQ(listed.size(), marked.size());
  for (std::size_t i = 0; i < listed.size(); ++i) {
    EXPECT_EQ(listed[i].place, marked[i].place);
    EXPECT_EQ(listed[i].item, marked[i].item);
    std::size_t cells = 0;
    for (const std::string& cell : listed[i].cells) {
      if (cell.empty()) continue;
      ++cells;
      EXPECT_TRUE(marked[i].element.attribute(cell.c_str()))
          << listed[i].place << " " << listed[i].item << " has no " << cell;
    }
    EXPECT_GT(cells, 0U) << listed[i].place << " " << listed[i].item;
  }
}

TEST(UnconfirmedRows, PageListsTheMarkedRowsOfTheDesignTables) {
  const DataFileText file("ZwtDataTable.xml");
  const std::vector<MarkedRow> marked = MarkedTableRows(file);
  EXPECT_EQ(marked.size(), 97U);
  ExpectSame(RowsInPage("### `ZwtDataTable.xml`"), marked);
}

TEST(UnconfirmedRows, PageListsTheMarkedSizesAndMaterials) {
  const DataFileText file("ZwtMaterials.xml");
  const std::vector<MarkedRow> marked = MarkedMaterials(file);
  EXPECT_EQ(marked.size(), 57U);
  ExpectSame(RowsInPage("### `ZwtMaterials.xml`"), marked);
}

/// Marks anywhere below a node, and those of them that stand directly before a row, size or material.
void CountMarks(const pugi::xml_node& parent, int& marks, int& placed) {
  for (const pugi::xml_node& child : parent) {
    const bool meant = std::string(child.value()).find("待核") != std::string::npos;
    EXPECT_EQ(IsMark(child), meant) << "the mark is written otherwise:" << child.value();
    if (IsMark(child)) {
      ++marks;
      const pugi::xml_node next = child.next_sibling();
      if (Is(next, "Row") || Is(next, "Size") || Is(next, "Material")) ++placed;
    }
    CountMarks(child, marks, placed);
  }
}

TEST(UnconfirmedRows, EveryMarkStandsBeforeARow) {
  int marks = 0;
  int placed = 0;
  for (const char* name : {"ZwtDataTable.xml", "ZwtMaterials.xml"}) {
    const DataFileText file(name);
    CountMarks(file.Outer(), marks, placed);
  }
  EXPECT_EQ(marks, 97 + 57);
  EXPECT_EQ(placed, marks);
}

}  // namespace
