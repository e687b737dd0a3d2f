// Walks the file of the pipe materials whole.
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cell_syntax.h"
#include "data/materials.h"
#include "data_file_text.h"
#include "host/text/number_text.h"

namespace {

using zwt::test::Attribute;
using zwt::test::DataFileText;
using zwt::test::Elements;
using zwt::test::Fits;
using zwt::test::Is;

const char* const kFile = "ZwtMaterials.xml";
constexpr std::size_t kMaterials = 18;
constexpr std::size_t kSizes = 182;

std::vector<pugi::xml_node> Materials(const DataFileText& file) {
  return Elements(file.Outer());
}

double Number(const pugi::xml_node& node, const char* key) {
  return _wtof(zwt::WideFromUtf8(Attribute(node, key)));
}

std::vector<std::string> Keys(const pugi::xml_node& node) {
  std::vector<std::string> keys;
  for (const pugi::xml_attribute& attribute : node.attributes()) keys.emplace_back(attribute.name());
  return keys;
}

bool IsDrain(const pugi::xml_node& material) {
  return Attribute(material, "Name").find("排水") != std::string::npos;
}

/// The comment of a material, which may have the mark of an unconfirmed figure behind it.
pugi::xml_node CommentOf(const pugi::xml_node& material) {
  const pugi::xml_node before = material.previous_sibling();
  return zwt::test::IsMark(before) ? before.previous_sibling() : before;
}

TEST(MaterialsSchema, EveryMaterialHasANamePrefixAndSource) {
  const DataFileText file(kFile);
  EXPECT_TRUE(Is(file.Outer(), "Materials"));
  EXPECT_TRUE(Keys(file.Outer()).empty());
  std::set<std::string> names;
  for (const pugi::xml_node& material : Materials(file)) {
    const std::string name = Attribute(material, "Name");
    EXPECT_TRUE(Is(material, "Material")) << material.name();
    EXPECT_TRUE(Fits(zwt::test::kTextCell, name));
    EXPECT_TRUE(names.insert(name).second) << name << " twice";
    EXPECT_TRUE(Attribute(material, "Prefix") == "DN" || Attribute(material, "Prefix") == "dn") << name;
    EXPECT_EQ(CommentOf(material).type(), pugi::node_comment) << name;
    EXPECT_NE(std::string(CommentOf(material).value()).find("尺寸："), std::string::npos) << name;
  }
  EXPECT_EQ(names.size(), kMaterials);
}

TEST(MaterialsSchema, OnlyDrainsHaveNoCoefficient) {
  const DataFileText file(kFile);
  for (const pugi::xml_node& material : Materials(file)) {
    const std::vector<std::string> drain = {"Name", "Prefix"};
    const std::vector<std::string> pressure = {"Name", "Coefficient", "Prefix"};
    EXPECT_EQ(Keys(material), IsDrain(material) ? drain : pressure) << Attribute(material, "Name");
    const double coefficient = Number(material, "Coefficient");
    EXPECT_TRUE(IsDrain(material) || coefficient == 100 || coefficient == 130 || coefficient == 140);
  }
}

TEST(MaterialsSchema, SizesAreNumbersAndRise) {
  const DataFileText file(kFile);
  std::size_t sizes = 0;
  for (const pugi::xml_node& material : Materials(file)) {
    double diameter = 0;
    double inner = 0;
    for (const pugi::xml_node& size : Elements(material)) {
      const std::string name = Attribute(material, "Name") + " DN" + Attribute(size, "DN");
      const std::vector<std::string> keys = Keys(size);
      EXPECT_TRUE(Is(size, "Size"));
      EXPECT_TRUE(keys == (std::vector<std::string>{"DN", "Inner", "Outer"}) ||
                  keys == (std::vector<std::string>{"DN", "Inner"}))
          << name;
      for (const std::string& key : keys) {
        EXPECT_TRUE(Fits(zwt::test::kNumberCell, Attribute(size, key.c_str()))) << name;
      }
      EXPECT_GT(Number(size, "DN"), diameter) << name;
      EXPECT_GT(Number(size, "Inner"), inner) << name;
      diameter = Number(size, "DN");
      inner = Number(size, "Inner");
      ++sizes;
    }
  }
  EXPECT_EQ(sizes, kSizes);
}

TEST(MaterialsSchema, WallsAreThickerThanNothingAndThinnerThanAQuarterOfThePipe) {
  const DataFileText file(kFile);
  for (const pugi::xml_node& material : Materials(file)) {
    for (const pugi::xml_node& size : Elements(material)) {
      if (!size.attribute("Outer")) continue;
      const double wall = (Number(size, "Outer") - Number(size, "Inner")) / 2;
      EXPECT_GT(wall, 0.01 * Number(size, "Outer")) << Attribute(material, "Name") << Attribute(size, "DN");
      EXPECT_LT(wall, 0.25 * Number(size, "Outer")) << Attribute(material, "Name") << Attribute(size, "DN");
    }
  }
}

TEST(MaterialsSchema, TheServicesSeeWhatTheFileHolds) {
  const DataFileText file(kFile);
  for (const pugi::xml_node& material : Materials(file)) {
    const CString name = zwt::WideFromUtf8(Attribute(material, "Name"));
    ZcList<int> diameters;
    ZcList<double> inner;
    ZcList<double> outer;
    EXPECT_EQ(ZwtGetMaterialParam(name, diameters, inner, outer), 0);
    const std::vector<pugi::xml_node> sizes = Elements(material);
    ASSERT_EQ(diameters.GetLength(), std::ssize(sizes));
    for (std::int32_t i = 0; i < diameters.GetLength(); ++i) {
      const pugi::xml_node& size = sizes[static_cast<std::size_t>(i)];
      EXPECT_EQ(diameters.GetAt(i), Number(size, "DN"));
      EXPECT_EQ(inner.GetAt(i), Number(size, "Inner"));
      EXPECT_EQ(outer.GetAt(i), Number(size, "Outer"));
    }
    double coefficient = 0;
    EXPECT_EQ(ZwtGetMaterialCoeff(name, coefficient) == 0, !IsDrain(material));
    EXPECT_EQ(coefficient, Number(material, "Coefficient"));
    EXPECT_EQ(ZwtGetMaterialPrefix(name), zwt::WideFromUtf8(Attribute(material, "Prefix")));
  }
}

}  // namespace
