#include "data/materials.h"

#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/data_folder.h"

namespace {

using zwt::test::DataFolder;

constexpr const char* kFile = "ZwtMaterials.xml";

constexpr const char* kTwoMaterials = R"(<?xml version="1.0" encoding="UTF-8"?>
<Materials>
  <!-- sizes need not be sorted -->
  <Material Name="镀锌钢管" Coefficient="100" Prefix="DN">
    <Size DN="20" Inner="20.25" Outer="26.75"/>
    <Size DN="15" Inner="14.75"/>
  </Material>
  <Material Name="HDPE排水管" Prefix="dn"><Size DN="50" Inner="44" Outer="50"/></Material>
  <Material Name="空"/>
</Materials>
)";

template <class T>
std::vector<T> Copied(const ZcList<T>& list) {
  std::vector<T> values;
  for (const T* value = list.GetFirst(); value != nullptr; value = list.GetNext(value))
    values.push_back(*value);
  return values;
}

struct Sizes {
  int status = -1;
  std::vector<int> diameters;
  std::vector<double> inner;
  std::vector<double> outer;
};

Sizes SizesOf(const CString& material) {
  // What the lists held before must be gone.
  ZcList<int> diameters(3);
  ZcList<double> inner(2);
  ZcList<double> outer(1);
  const int status = ZwtGetMaterialParam(material, diameters, inner, outer);
  return {status, Copied(diameters), Copied(inner), Copied(outer)};
}

class MaterialsTest : public testing::Test {
 protected:
  MaterialsTest() { folder.Write(kFile, kTwoMaterials); }

  DataFolder folder;
};

TEST_F(MaterialsTest, SizesComeAsParallelListsInTheOrderOfTheFile) {
  const Sizes sizes = SizesOf(L"镀锌钢管");
  EXPECT_EQ(sizes.status, 0);
  EXPECT_EQ(sizes.diameters, (std::vector<int>{20, 15}));
  EXPECT_EQ(sizes.inner, (std::vector<double>{20.25, 14.75}));
  EXPECT_EQ(sizes.outer, (std::vector<double>{26.75, 0}));
}

TEST_F(MaterialsTest, OneSizeGivesTheSameDiametersAsTheLists) {
  for (const wchar_t* material : {L"镀锌钢管", L"HDPE排水管"}) {
    const Sizes sizes = SizesOf(material);
    for (std::size_t i = 0; i < sizes.diameters.size(); ++i) {
      double inner = -1;
      double outer = -1;
      EXPECT_EQ(ZwtGetMaterialParam(material, sizes.diameters[i], inner, outer), 0);
      EXPECT_EQ(inner, sizes.inner[i]);
      EXPECT_EQ(outer, sizes.outer[i]);
    }
  }
}

TEST_F(MaterialsTest, CoefficientAndPrefix) {
  double coefficient = 0;
  EXPECT_EQ(ZwtGetMaterialCoeff(L"镀锌钢管", coefficient), 0);
  EXPECT_EQ(coefficient, 100);
  EXPECT_EQ(ZwtGetMaterialPrefix(L"镀锌钢管"), L"DN");
  EXPECT_EQ(ZwtGetMaterialPrefix(L"HDPE排水管"), L"dn");
}

TEST_F(MaterialsTest, DrainHasNoCoefficient) {
  double coefficient = 0;
  EXPECT_NE(ZwtGetMaterialCoeff(L"HDPE排水管", coefficient), 0);
  EXPECT_EQ(coefficient, 0);
}

TEST_F(MaterialsTest, NominalDiameterThatTheMaterialDoesNotHave) {
  for (const double diameter : {0.0, 25.0, 20.5, -20.0}) {
    double inner = 0;
    double outer = 0;
    EXPECT_NE(ZwtGetMaterialParam(L"镀锌钢管", diameter, inner, outer), 0) << diameter;
    EXPECT_EQ(inner, 0);
    EXPECT_EQ(outer, 0);
  }
}

void ExpectNoAnswers(const CString& material) {
  const Sizes sizes = SizesOf(material);
  EXPECT_NE(sizes.status, 0);
  EXPECT_TRUE(sizes.diameters.empty() && sizes.inner.empty() && sizes.outer.empty());
  double inner = 0;
  double outer = 0;
  double coefficient = 0;
  EXPECT_NE(ZwtGetMaterialParam(material, 20, inner, outer), 0);
  EXPECT_NE(ZwtGetMaterialCoeff(material, coefficient), 0);
  EXPECT_EQ(inner, 0);
  EXPECT_EQ(outer, 0);
  EXPECT_EQ(coefficient, 0);
  EXPECT_EQ(ZwtGetMaterialPrefix(material), L"");
}

TEST_F(MaterialsTest, MaterialThatIsNotListedHasNoAnswers) {
  ExpectNoAnswers(L"陶土管");
  ExpectNoAnswers(L"镀锌");
}

TEST_F(MaterialsTest, EmptyNameHasNoAnswersEvenIfAMaterialHasIt) {
  ExpectNoAnswers(L"");
  folder.Write(kFile,
               "<Materials><Material Coefficient='1'><Size DN='20' Inner='20'/></Material></Materials>");
  ExpectNoAnswers(L"");
}

TEST_F(MaterialsTest, MaterialWithoutSizesIsListedAllTheSame) {
  EXPECT_EQ(SizesOf(L"空").status, 0);
  EXPECT_TRUE(SizesOf(L"空").diameters.empty());
}

TEST_F(MaterialsTest, ChangedFileIsSeenAtOnce) {
  for (int i = 0; i < 50; ++i) {
    const std::string factor = std::to_string(100 + i);
    folder.Write(kFile, "<Materials><Material Name='A' Coefficient='" + factor + "'/></Materials>");
    double coefficient = 0;
    ASSERT_EQ(ZwtGetMaterialCoeff(L"A", coefficient), 0);
    ASSERT_EQ(coefficient, 100 + i);
  }
}

TEST_F(MaterialsTest, ChangeBehindAnOldTimeStampIsSeenByTheNewOne) {
  const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  folder.Write(kFile, "<Materials><Material Name='A' Prefix='a'/></Materials>");
  std::filesystem::last_write_time(folder.File(kFile), longAgo);
  EXPECT_EQ(ZwtGetMaterialPrefix(L"A"), L"a");
  EXPECT_EQ(ZwtGetMaterialPrefix(L"A"), L"a");
  folder.Write(kFile, "<Materials><Material Name='A' Prefix='b'/></Materials>");
  EXPECT_EQ(ZwtGetMaterialPrefix(L"A"), L"b");
}

TEST_F(MaterialsTest, AnotherMainDirectoryHasItsOwnMaterials) {
  EXPECT_EQ(ZwtGetMaterialPrefix(L"镀锌钢管"), L"DN");
  {
    const DataFolder other;
    other.Write(kFile, "<Materials><Material Name='镀锌钢管' Prefix='Φ'/></Materials>");
    EXPECT_EQ(ZwtGetMaterialPrefix(L"镀锌钢管"), L"Φ");
  }
  EXPECT_EQ(ZwtGetMaterialPrefix(L"镀锌钢管"), L"DN");
}

TEST_F(MaterialsTest, FileThatIsTakenAwayAndComesBack) {
  EXPECT_EQ(ZwtGetMaterialPrefix(L"镀锌钢管"), L"DN");
  std::filesystem::remove(folder.File(kFile));
  ExpectNoAnswers(L"镀锌钢管");
  std::filesystem::create_directory(folder.File(kFile));
  ExpectNoAnswers(L"镀锌钢管");
  std::filesystem::remove(folder.File(kFile));
  folder.Write(kFile, kTwoMaterials);
  EXPECT_EQ(ZwtGetMaterialPrefix(L"镀锌钢管"), L"DN");
}

TEST_F(MaterialsTest, BrokenFilesHaveNoMaterials) {
  for (const char* bytes :
       {"", "<Materials>", "<Materials><Material Name='镀锌钢管'><Size></Materials>", "<DataTables/>",
        "<Materials><Metal/></Materials>",
        "<Materials><Material Name='镀锌钢管'><Row/></Material></Materials>",
        "<Materials><Material Name='镀锌钢管'><Size><Size/></Size></Material></Materials>",
        "<Materials><Material Name='镀锌钢管'>text</Material></Materials>",
        "<Materials><Material Name='\xB8\xF8'/></Materials>"}) {
    folder.Write(kFile, bytes);
    ExpectNoAnswers(L"镀锌钢管");
  }
}

}  // namespace
