// Walks the file of the design tables whole: every table with its shape, attributes, syntax and number of
// rows, and the figures against what they must obey among each other.
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cell_syntax.h"
#include "data/design_tables.h"
#include "data/range_value.h"
#include "data_file_text.h"

namespace {

using zwt::test::Attribute;
using zwt::test::CellSyntax;
using zwt::test::DataFileText;
using zwt::test::Elements;
using zwt::test::Is;

const char* const kFile = "ZwtDataTable.xml";

struct Column {
  std::string key;
  CellSyntax syntax;
};

/// Groups within the table: 0 for rows alone, 1 for groups of rows, 2 for groups that hold groups of rows.
struct TableSchema {
  const char* name;
  int groupDepth;
  int rows;
  bool rowsAreNamed;
  std::vector<Column> columns;
};

std::vector<Column> GradeColumns(const std::vector<int>& diameters) {
  std::vector<Column> columns = {{"grade", zwt::test::kNumberCell}};
  for (const int diameter : diameters) {
    columns.push_back({"dn" + std::to_string(diameter) + "q", zwt::test::kNumberCell});
    columns.push_back({"dn" + std::to_string(diameter) + "v", zwt::test::kNumberCell});
  }
  return columns;
}

std::vector<TableSchema> Tables() {
  using namespace zwt::test;
  return {
      {"TABLE01", 0, 4, true, {{"WareSet", kTextCell}, {"Ql", kRangeCell}, {"Kh", kRangeCell}}},
      {"TABLE02",
       1,
       42,
       true,
       {{"Unit", kTextCell}, {"L", kRangeCell}, {"h", kRangeCell}, {"Kh", kRangeCell}}},
      {"TABLE04", 1, 33, true, {{"Unit", kTextCell}, {"L", kRangeCell}, {"h", kHoursCell}}},
      {"TABLE05",
       1,
       38,
       true,
       {{"L", kRangeOrDashCell}, {"HL", kRangeCell}, {"C", kRangeCell}, {"PER", kRangeOrDashCell}}},
      {"TABLE06", 2, 25, true, {{"UC", kRangeOrDashCell}, {"DC", kRangeCell}}},
      {"TABLE07",
       1,
       25,
       true,
       {{"L", kBracketCell}, {"Q", kBracketCell}, {"DN", kRangeCell}, {"MPa", kRangeCell}}},
      {"TABLE08", 0, 0, false, {}},
      {"TABLE09", 2, 23, true, {{"UC", kRangeOrDashCell}, {"DC", kRangeCell}}},
      {"HydrantQ",
       1,
       27,
       true,
       {{"L", kNumberCell}, {"N", kNumberCell}, {"HQ", kNumberCell}, {"VQ", kNumberCell}}},
      {"PSCALDATA_MTAL", 0, 22, false, GradeColumns({50, 75, 100, 125, 150, 200})},
      {"PSCALDATA_PLASTIC", 0, 26, false, GradeColumns({50, 75, 110, 125, 160, 200})},
  };
}

std::vector<TableSchema> HourlyFactorClasses() {
  using namespace zwt::test;
  const std::vector<Column> columns = {{"M", kCountCell}, {"Kh", kNumberCell}};
  return {{"Class01", 0, 9, false, columns},
          {"Class02", 0, 6, false, columns},
          {"Class03", 0, 7, false, columns}};
}

void CheckRow(const pugi::xml_node& row, const TableSchema& schema) {
  std::vector<std::string> expected;
  if (schema.rowsAreNamed) expected.emplace_back("Name");
  for (const Column& column : schema.columns) expected.push_back(column.key);
  std::vector<std::string> keys;
  for (const pugi::xml_attribute& attribute : row.attributes()) keys.emplace_back(attribute.name());
  EXPECT_EQ(keys, expected) << schema.name << " " << Attribute(row, "Name");
  for (const Column& column : schema.columns) {
    const std::string cell = Attribute(row, column.key.c_str());
    EXPECT_TRUE(Fits(column.syntax, cell))
        << schema.name << " " << Attribute(row, "Name") << " " << column.key << ": \"" << cell << "\" is no "
        << column.syntax.name;
  }
  if (schema.rowsAreNamed) {
    EXPECT_TRUE(Fits(zwt::test::kTextCell, Attribute(row, "Name"))) << schema.name;
  }
  EXPECT_TRUE(Elements(row).empty()) << schema.name;
}

int CheckRows(const pugi::xml_node& parent, const TableSchema& schema, int groupDepth) {
  int rows = 0;
  for (const pugi::xml_node& child : Elements(parent)) {
    if (Is(child, "Row")) {
      CheckRow(child, schema);
      ++rows;
      continue;
    }
    EXPECT_TRUE(Is(child, "Group")) << schema.name << ": " << child.name();
    EXPECT_GT(groupDepth, 0) << schema.name << ": groups too deep";
    EXPECT_TRUE(Fits(zwt::test::kTextCell, Attribute(child, "Name"))) << schema.name;
    EXPECT_FALSE(Elements(child).empty()) << schema.name << " " << Attribute(child, "Name") << " is empty";
    rows += CheckRows(child, schema, groupDepth - 1);
  }
  return rows;
}

void CheckTable(const pugi::xml_node& table, const TableSchema& schema) {
  EXPECT_TRUE(Is(table, "Table"));
  EXPECT_EQ(Attribute(table, "Name"), schema.name);
  const pugi::xml_node comment = table.previous_sibling();
  EXPECT_EQ(comment.type(), pugi::node_comment) << schema.name;
  EXPECT_TRUE(std::regex_search(comment.value(), std::regex("(GB|表) ?[0-9]+(\\.|-)"))) << schema.name;
}

TEST(DesignTablesSchema, HoldsExactlyTheTablesThatAreRead) {
  const DataFileText file(kFile);
  EXPECT_TRUE(Is(file.Outer(), "DataTables"));
  EXPECT_EQ(Attribute(file.Outer(), "edition"), "GB 50015-2003 (2009)");
  const std::vector<TableSchema> schemas = Tables();
  const std::vector<pugi::xml_node> tables = Elements(file.Outer());
  ASSERT_EQ(tables.size(), schemas.size());
  for (std::size_t i = 0; i < tables.size(); ++i) {
    CheckTable(tables[i], schemas[i]);
    if (schemas[i].rows == 0) continue;
    EXPECT_EQ(CheckRows(tables[i], schemas[i], schemas[i].groupDepth), schemas[i].rows) << schemas[i].name;
  }
}

TEST(DesignTablesSchema, HourlyFactorsOfHotWaterStandInThreeChildTables) {
  const DataFileText file(kFile);
  const pugi::xml_node table = file.Outer().find_child_by_attribute("Table", "Name", "TABLE08");
  const std::vector<pugi::xml_node> classes = Elements(table);
  const std::vector<TableSchema> schemas = HourlyFactorClasses();
  ASSERT_EQ(classes.size(), schemas.size());
  for (std::size_t i = 0; i < classes.size(); ++i) {
    CheckTable(classes[i], schemas[i]);
    EXPECT_EQ(CheckRows(classes[i], schemas[i], 0), schemas[i].rows);
  }
}

TEST(DesignTablesSchema, TheReaderSeesWhatTheFileHolds) {
  ZcDtDictionary dictionary(nullptr, nullptr);
  ASSERT_TRUE(zwt::ReadDesignTables(dictionary));
  EXPECT_EQ(dictionary.Edition(), L"GB 50015-2003 (2009)");
  EXPECT_EQ(dictionary.Tables().GetCount(), static_cast<std::int32_t>(Tables().size()));
  const ZcDtDictItem& dwellings = zwt::FindTable(dictionary, L"TABLE01");
  EXPECT_EQ(dwellings.GetAt(0)->GetName(), L"普通住宅Ⅰ");
  EXPECT_EQ(dwellings.GetAt(3)->GetName(), L"别墅");
  EXPECT_EQ(dwellings.GetAt(3)->GetAttributeValue(L"Ql"), L"200～350");
}

/// Every row of a table, those of its groups included.
std::vector<pugi::xml_node> RowsOf(const DataFileText& file, const std::string& table) {
  std::vector<pugi::xml_node> rows;
  const pugi::xml_node node = file.Outer().find_child_by_attribute("Table", "Name", table.c_str());
  zwt::test::ForEachElement(node, [&rows](const pugi::xml_node& element) {
    if (Is(element, "Row")) rows.push_back(element);
  });
  return rows;
}

double Number(const pugi::xml_node& row, const std::string& key) {
  return _wtof(zwt::WideFromUtf8(Attribute(row, key.c_str())));
}

TEST(DesignTablesFigures, RangesRunFromTheSmallToTheLargeButForTheHourlyFactors) {
  const DataFileText file(kFile);
  zwt::test::ForEachElement(file.Outer(), [](const pugi::xml_node& row) {
    for (const pugi::xml_attribute& attribute : row.attributes()) {
      const CString cell = zwt::WideFromUtf8(attribute.value());
      const std::size_t tilde = cell.find(L'～');
      if (tilde == CString::npos || !Is(row, "Row")) continue;
      const double first = _wtof(cell);
      const double second = _wtof(cell.substr(tilde + 1));
      const bool falls = std::string(attribute.name()) == "Kh";
      EXPECT_TRUE(falls ? first > second : first < second)
          << Attribute(row, "Name") << " " << attribute.value();
    }
  });
}

TEST(DesignTablesFigures, DwellingQuotasAgreeWithTheConstantsOfTheSingleSection) {
  const DataFileText file(kFile);
  const std::vector<pugi::xml_node> rows = RowsOf(file, "TABLE01");
  const double quotas[] = {117.5, 215, 250, 275};
  const double factors[] = {2.75, 2.55, 2.25, 2.05};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_DOUBLE_EQ(zwt::ParseRangeValue(zwt::WideFromUtf8(Attribute(rows[i], "Ql"))), quotas[i]);
    EXPECT_DOUBLE_EQ(zwt::ParseRangeValue(zwt::WideFromUtf8(Attribute(rows[i], "Kh"))), factors[i]);
  }
}

TEST(DesignTablesFigures, OneEquivalentIsAFifthOfALitrePerSecond) {
  const DataFileText file(kFile);
  for (const pugi::xml_node& row : RowsOf(file, "TABLE07")) {
    EXPECT_NEAR(Number(row, "Q"), Number(row, "L") / 0.2, 0.0100001) << Attribute(row, "Name");
  }
}

TEST(DesignTablesFigures, HydrantDemandIsThatOfItsGuns) {
  const DataFileText file(kFile);
  for (const pugi::xml_node& row : RowsOf(file, "HydrantQ")) {
    EXPECT_EQ(Number(row, "L"), Number(row, "N") * Number(row, "HQ")) << Attribute(row, "Name");
    EXPECT_LE(Number(row, "HQ"), Number(row, "VQ")) << Attribute(row, "Name");
    EXPECT_LE(Number(row, "VQ"), Number(row, "L")) << Attribute(row, "Name");
  }
}

TEST(DesignTablesFigures, HourlyFactorsFallWithTheNumberOfUsers) {
  const DataFileText file(kFile);
  const pugi::xml_node table = file.Outer().find_child_by_attribute("Table", "Name", "TABLE08");
  for (const pugi::xml_node& hourly : Elements(table)) {
    double users = 0;
    double factor = 100;
    for (const pugi::xml_node& row : Elements(hourly)) {
      const std::string count = std::regex_replace(Attribute(row, "M"), std::regex("≥"), "");
      EXPECT_GT(_wtof(zwt::WideFromUtf8(count)), users);
      EXPECT_LT(Number(row, "Kh"), factor);
      users = _wtof(zwt::WideFromUtf8(count));
      factor = Number(row, "Kh");
    }
  }
}

struct DrainTable {
  const char* name;
  double roughness;                // Manning's n
  std::map<int, double> inner;     // mm, by nominal diameter
  std::map<int, double> general;   // the general grade of the standard
  std::map<int, double> capacity;  // L/s there, as the choice of a branch diameter has it
};

const DrainTable kDrainTables[] = {
    {"PSCALDATA_MTAL",
     0.013,
     {{50, 50}, {75, 75}, {100, 100}, {125, 126}, {150, 150}, {200, 200}},
     {{50, 0.035}, {75, 0.025}, {100, 0.020}, {125, 0.015}, {150, 0.010}, {200, 0.008}},
     {{50, 0.76}, {75, 1.9}, {100, 3.65}, {125, 5.86}, {150, 10.23}, {200, 19.7}}},
    {"PSCALDATA_PLASTIC",
     0.009,
     {{50, 46}, {75, 70.4}, {110, 103.6}, {125, 118.6}, {160, 152}, {200, 190.2}},
     {{50, 0.025}, {75, 0.015}, {110, 0.012}, {125, 0.010}, {160, 0.007}, {200, 0.005}},
     {{50, 0.74}, {75, 1.79}, {110, 4.49}, {125, 5.88}, {160, 12.8}, {200, 19.67}}},
};

struct PartFullFlow {
  double flow;      // L/s
  double velocity;  // m/s
};

/// Manning's formula for a circle (inner diameter mm) that is filled to 0.5, or to 0.6 from DN 150 on.
PartFullFlow Manning(double roughness, double inner, int diameter, double grade) {
  const double filled = diameter < 150 ? 0.5 : 0.6;
  const double angle = 2 * std::acos(1 - 2 * filled);
  const double radius = inner / 1000 / 2;
  const double area = radius * radius / 2 * (angle - std::sin(angle));
  const double hydraulicRadius = area / (angle * radius);
  const double velocity = std::pow(hydraulicRadius, 2.0 / 3.0) * std::sqrt(grade) / roughness;
  return {velocity * area * 1000, velocity};
}

TEST(DesignTablesFigures, DrainTablesAreManningsFormulaToTheLastDigit) {
  const DataFileText file(kFile);
  for (const DrainTable& table : kDrainTables) {
    for (const pugi::xml_node& row : RowsOf(file, table.name)) {
      for (const auto& [diameter, inner] : table.inner) {
        const PartFullFlow exact = Manning(table.roughness, inner, diameter, Number(row, "grade"));
        const std::string key = "dn" + std::to_string(diameter);
        EXPECT_NEAR(Number(row, key + "q"), exact.flow, 0.000501) << table.name << " " << key;
        EXPECT_NEAR(Number(row, key + "v"), exact.velocity, 0.000501) << table.name << " " << key;
      }
    }
  }
}

// L/s; the capacities come from printed tables, whose last digit was rounded by hand.
constexpr double kHandRounding = 0.015;

TEST(DesignTablesFigures, DrainCapacitiesAreTheFlowsAtTheGeneralGrade) {
  const DataFileText file(kFile);
  for (const DrainTable& table : kDrainTables) {
    std::size_t found = 0;
    for (const pugi::xml_node& row : RowsOf(file, table.name)) {
      for (const auto& [diameter, grade] : table.general) {
        if (Number(row, "grade") != grade) continue;
        ++found;
        EXPECT_NEAR(Number(row, "dn" + std::to_string(diameter) + "q"), table.capacity.at(diameter),
                    kHandRounding)
            << table.name << " " << diameter;
      }
    }
    EXPECT_EQ(found, table.general.size());
  }
}

TEST(DesignTablesFigures, DrainRowsComeByRisingFlow) {
  const DataFileText file(kFile);
  for (const DrainTable& table : kDrainTables) {
    std::map<std::string, double> before;
    for (const pugi::xml_node& row : RowsOf(file, table.name)) {
      for (const pugi::xml_attribute& attribute : row.attributes()) {
        EXPECT_GT(Number(row, attribute.name()), before[attribute.name()]) << table.name;
        before[attribute.name()] = Number(row, attribute.name());
      }
    }
  }
}

TEST(DesignTablesFigures, ColdWaterTemperaturesArePlausible) {
  const DataFileText file(kFile);
  for (const char* table : {"TABLE06", "TABLE09"}) {
    for (const pugi::xml_node& row : RowsOf(file, table)) {
      for (const char* key : {"UC", "DC"}) {
        const double temperature = zwt::ParseRangeValue(zwt::WideFromUtf8(Attribute(row, key)));
        EXPECT_TRUE(temperature == 0 || (temperature >= 4 && temperature <= 22)) << Attribute(row, "Name");
      }
    }
  }
}

}  // namespace
