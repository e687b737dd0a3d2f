#include "host/drawing/entities.h"

#include <memory>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using zwt::Drawing;
using zwt::WorkingDrawing;

/// Each test has an empty working drawing.
class Entities : public testing::Test {
 protected:
  void SetUp() override { before_ = zwt::ReplaceWorkingDrawing(std::make_unique<Drawing>()); }
  void TearDown() override { zwt::ReplaceWorkingDrawing(std::move(before_)); }

  static AcDbObjectId AddPipe(double x, const zwt::FieldList& fields = {}) {
    return WorkingDrawing().AddPipe({x, 0, 0}, {x, 2000, 0}, fields);
  }

  static std::vector<AcDbObjectId> Items(const ZcDbObjectIdList& list) {
    std::vector<AcDbObjectId> items;
    for (std::int32_t i = 0; i < list.GetLength(); ++i) items.push_back(list.GetAt(i));
    return items;
  }

 private:
  std::unique_ptr<Drawing> before_;
};

AcDbObjectId Annotate(const AcGePoint3d& point, const CString& system, const CString& number = L"65") {
  auto dimension = std::make_unique<ZcDbWtSymbDiameterDim>();
  dimension->SetStyle(0);
  dimension->SetLocation(point);
  dimension->SetPrefix(L"DN");
  dimension->SetDiameter(number);
  dimension->SetTextHeight(ZcDbGetWtTextHeight());
  dimension->SetTextStyle(ZcDtInitTextStyle(L"WT_TEXT"));
  dimension->setLayer(ZcDtInitLayer(GetZwtLayer(L"标注", L"管径", system)));
  return AddToModelSpace(dimension.release(), 1);
}

std::string TagsOf(AcDbObjectId id) {
  const Drawing& drawing = WorkingDrawing();
  return std::string(drawing.Entity(drawing.IndexOf(id)).tags);
}

TEST_F(Entities, OpenAsTheirClassOrABaseOfIt) {
  const AcDbObjectId id = AddPipe(0);
  ZcDbWtPipe* pipe = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(pipe, id, AcDb::kForRead), Acad::eOk);
  EXPECT_EQ(pipe->objectId(), id);
  EXPECT_EQ(pipe->GetEndPoint(), (AcGePoint3d{0, 2000, 0}));
  pipe->close();
  ZcDbEntity* entity = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(entity, id, AcDb::kForRead), Acad::eOk);
  EXPECT_EQ(entity->isA(), ZcDbWtPipe::desc());
  entity->close();
  ZcDbText* text = nullptr;
  EXPECT_EQ(acdbOpenAcDbObject(text, id, AcDb::kForRead), Acad::eNotThatKindOfClass);
  EXPECT_EQ(text, nullptr);
}

TEST_F(Entities, OneWriterOrManyReaders) {
  const AcDbObjectId id = AddPipe(0);
  ZcDbWtPipe* first = nullptr;
  ZcDbWtPipe* second = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(first, id, AcDb::kForWrite), Acad::eOk);
  EXPECT_EQ(acdbOpenAcDbObject(second, id, AcDb::kForWrite), Acad::eWasOpenForWrite);
  EXPECT_EQ(second, nullptr);
  EXPECT_EQ(acdbOpenAcDbObject(second, id, AcDb::kForRead), Acad::eWasOpenForWrite);
  first->close();
  ASSERT_EQ(acdbOpenAcDbObject(first, id, AcDb::kForRead), Acad::eOk);
  ASSERT_EQ(acdbOpenAcDbObject(second, id, AcDb::kForRead), Acad::eOk);
  ZcDbWtPipe* writer = nullptr;
  EXPECT_EQ(acdbOpenAcDbObject(writer, id, AcDb::kForWrite), Acad::eWasOpenForRead);
  first->close();
  second->close();
  EXPECT_EQ(acdbOpenAcDbObject(writer, id, AcDb::kForWrite), Acad::eOk);
  writer->close();
}

TEST_F(Entities, ErasedAndMissingOnesDoNotOpen) {
  const AcDbObjectId id = AddPipe(0);
  ZcDbEntity* entity = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(entity, id, AcDb::kForWrite), Acad::eOk);
  EXPECT_EQ(entity->erase(true), Acad::eOk);
  entity->close();
  EXPECT_EQ(acdbOpenAcDbObject(entity, id, AcDb::kForRead), Acad::eWasErased);
  EXPECT_EQ(acdbOpenAcDbObject(entity, {}, AcDb::kForRead), Acad::eNullObjectId);
  EXPECT_EQ(acdbOpenAcDbObject(entity, {12345}, AcDb::kForRead), Acad::eInvalidInput);
}

TEST_F(Entities, ChangesNeedAnOpeningForWrite) {
  const AcDbObjectId id = AddPipe(0);
  ZcDbWtPipe* pipe = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(pipe, id, AcDb::kForRead), Acad::eOk);
  EXPECT_EQ(pipe->SetDiameter(50), Acad::eNotOpenForWrite);
  EXPECT_EQ(pipe->erase(), Acad::eNotOpenForWrite);
  pipe->close();
  ASSERT_EQ(acdbOpenAcDbObject(pipe, id, AcDb::kForWrite), Acad::eOk);
  EXPECT_EQ(pipe->SetDiameter(50), Acad::eOk);
  EXPECT_EQ(pipe->GetDiameter(), 50);
  pipe->close();
}

TEST_F(Entities, PipesTellTheirFieldsAndCurve) {
  const AcDbObjectId id = AddPipe(0, {{L"WtSystem", L"热水"}, {L"Material", L"PPR"}, {L"Ration", L"250"}});
  ZcDbWtPipe* pipe = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(pipe, id, AcDb::kForRead), Acad::eOk);
  EXPECT_EQ(pipe->GetWtSystem(), L"热水");
  EXPECT_EQ(pipe->GetMaterial(), L"PPR");
  EXPECT_EQ(pipe->GetPipeLength(), 2000);
  const std::unique_ptr<ZcGeCurve3d> curve(pipe->GetPipeCurve());
  EXPECT_EQ(curve->GetMidPoint(), (AcGePoint3d{0, 1000, 0}));
  CString text = L"stale";
  EXPECT_EQ(pipe->Fields()->GetField(L"Ration", text), Acad::eOk);
  EXPECT_EQ(text, L"250");
  EXPECT_EQ(pipe->Fields()->GetField(L"Kh", text), Acad::eKeyNotFound);
  EXPECT_EQ(text, L"");
  pipe->close();
}

TEST_F(Entities, FieldsAreReachedByIdentifier) {
  const AcDbObjectId id = AddPipe(0);
  CString text = L"stale";
  EXPECT_EQ(ZwtGetEntityFields(id, L"Kh", text), Acad::eKeyNotFound);
  EXPECT_EQ(text, L"");
  EXPECT_EQ(ZwtSetEntityFields(id, L"Kh", L"2.5"), Acad::eOk);
  EXPECT_EQ(ZwtGetEntityFields(id, L"Kh", text), Acad::eOk);
  EXPECT_EQ(text, L"2.5");
  text = L"stale";
  EXPECT_EQ(ZwtGetEntityFields({}, L"Kh", text), Acad::eNullObjectId);
  EXPECT_EQ(text, L"");
}

TEST_F(Entities, ConnectedPipesComeInDrawingOrderAndByClass) {
  Drawing& drawing = WorkingDrawing();
  const AcDbObjectId late = drawing.AddPipe({0, 2000, 0}, {500, 2000, 0});
  const AcDbObjectId main = AddPipe(0);
  const AcDbObjectId tee = drawing.AddPipe({700, 1000, 0}, {0, 1000, 0});
  ZcDbWtPipe* pipe = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(pipe, main, AcDb::kForRead), Acad::eOk);
  ZcDbObjectIdList connected;
  pipe->GetConnectEnt(connected, ZcDbWtPipe::desc());
  EXPECT_THAT(Items(connected), ElementsAre(late, tee));
  ZcDbObjectIdList texts;
  pipe->GetConnectEnt(texts, ZcDbText::desc());
  EXPECT_TRUE(texts.IsEmpty());
  pipe->close();
}

TEST_F(Entities, AnAnnotationAttachesItselfToThePipeOfItsMidpoint) {
  AddPipe(-500);
  const AcDbObjectId pipeId = AddPipe(0, {{L"WtSystem", L"给水"}});
  const AcDbObjectId text = Annotate({0, 1000, 0}, L"给水");
  ZcDbWtPipe* pipe = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(pipe, pipeId, AcDb::kForRead), Acad::eOk);
  ZcDbObjectIdList attached;
  pipe->GetAttachObjectId(attached);
  EXPECT_THAT(Items(attached), ElementsAre(text));
  pipe->close();
  const std::string tags = TagsOf(text);
  EXPECT_THAT(tags, HasSubstr("\n  1\nDN65\n"));
  EXPECT_THAT(tags, HasSubstr("\n 40\n350.0\n"));
  EXPECT_THAT(tags, HasSubstr("\n 50\n90.0\n"));
  EXPECT_THAT(tags, HasSubstr("\n  8\n标注-管径-给水\n"));
  EXPECT_THAT(tags, HasSubstr("\n  7\nWT_TEXT\n"));
  EXPECT_THAT(tags, HasSubstr("\n 72\n1\n 11\n0.0\n 21\n1000.0\n 31\n0.0\n100\nAcDbText\n 73\n1\n"));
  EXPECT_THAT(tags, HasSubstr("1001\nZWT_DIAMETER_DIM\n1000\nStyle\n1000\n0\n1000\nPrefix\n1000\nDN\n"
                              "1000\nDiameter\n1000\n65\n"));
}

TEST_F(Entities, OfSeveralPipesWithOneMidpointTheOneOfTheLayersSystemHasTheAnnotation) {
  Drawing& drawing = WorkingDrawing();
  const AcDbObjectId cold = drawing.AddPipe({0, -10, 0}, {0, 10, 0}, {{L"WtSystem", L"给水"}});
  const AcDbObjectId hot = drawing.AddPipe({-10, 0, 0}, {10, 0, 0}, {{L"WtSystem", L"热水"}});
  Annotate({0, 0, 0}, L"热水");
  EXPECT_TRUE(drawing.AttachedTo(drawing.IndexOf(cold)).empty());
  EXPECT_EQ(drawing.AttachedTo(drawing.IndexOf(hot)).size(), 1U);
  Annotate({0, 0, 0}, L"消防");
  EXPECT_EQ(drawing.AttachedTo(drawing.IndexOf(cold)).size(), 1U);
}

TEST_F(Entities, AnAnnotationWithoutAPipeIsAPlainText) {
  AddPipe(0);
  const std::string tags = TagsOf(Annotate({0, 1001, 0}, L"给水"));
  EXPECT_THAT(tags, testing::Not(HasSubstr("ZWT_ATTACH")));
  EXPECT_THAT(tags, testing::Not(HasSubstr("\n 50\n")));
}

TEST_F(Entities, AnnotationsAreReadFromBelowOrFromTheRight) {
  struct Row {
    const char* name;
    AcGePoint3d end;
    std::string rotation;  // empty: none written
  };
  const std::vector<Row> rows = {
      {"to the right", {100, 0, 0}, ""},           {"to the left", {-100, 0, 0}, ""},
      {"up", {0, 100, 0}, " 50\n90.0\n"},          {"down", {0, -100, 0}, " 50\n90.0\n"},
      {"up right", {100, 100, 0}, " 50\n45.0\n"},  {"down left", {-100, -100, 0}, " 50\n45.0\n"},
      {"up left", {-100, 100, 0}, " 50\n-45.0\n"}, {"out of the plane", {0, 0, 100}, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    zwt::ReplaceWorkingDrawing(std::make_unique<Drawing>());
    WorkingDrawing().AddPipe({0, 0, 0}, row.end);
    const std::string tags = TagsOf(Annotate({row.end.x / 2, row.end.y / 2, row.end.z / 2}, L""));
    if (row.rotation.empty()) {
      EXPECT_THAT(tags, testing::Not(HasSubstr("\n 50\n")));
    } else {
      EXPECT_THAT(tags, HasSubstr(row.rotation));
    }
  }
}

TEST_F(Entities, NumberLabelsStandBesideTheirPoint) {
  auto text = std::make_unique<ZcDbText>(L"7");
  text->SetTextHeight(350, 1);
  text->SetPosition({10, 20, 30});
  text->SetRotation(0);
  text->SetColorIndex(3);
  text->SetTextStyle(ZcDtInitTextStyle(L"WT_TEXT"));
  text->setLayer(ZcDtInitLayer(GetZwtLayer(L"平面", L"管道", L"消防")));
  text->SetAlignment(static_cast<ZcGiText::TextAlignment>(9));
  const AcDbObjectId id = AddToModelSpace(text.release(), 1);
  const std::string tags = TagsOf(id);
  EXPECT_THAT(tags, HasSubstr("  8\n平面-管道-消防\n 62\n3\n"));
  EXPECT_THAT(tags, HasSubstr(" 11\n10.0\n 21\n20.0\n 31\n30.0\n100\nAcDbText\n 73\n2\n"));
  ZcDbEntity* entity = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(entity, id, AcDb::kForWrite), Acad::eOk);
  EXPECT_EQ(entity->erase(true), Acad::eOk);
  entity->close();
}

TEST_F(Entities, AnAddedEntityCanStayOpen) {
  auto* text = std::make_unique<ZcDbText>(L"1").release();
  const AcDbObjectId id = AddToModelSpace(text, 0);
  EXPECT_EQ(text->objectId(), id);
  ZcDbText* again = nullptr;
  EXPECT_EQ(acdbOpenAcDbObject(again, id, AcDb::kForRead), Acad::eWasOpenForWrite);
  EXPECT_EQ(text->close(), Acad::eOk);
  EXPECT_EQ(acdbOpenAcDbObject(again, id, AcDb::kForRead), Acad::eOk);
  again->close();
}

TEST_F(Entities, AHiddenLayerIsRefused) {
  zwt::DrawingData data;
  zwt::Layer hidden;
  hidden.name = L"H";
  hidden.isHidden = hidden.inTable = true;
  data.layers.push_back(hidden);
  zwt::ReplaceWorkingDrawing(std::make_unique<Drawing>(std::move(data)));
  const AcDbObjectId id = AddPipe(0);
  ZcDbEntity* entity = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(entity, id, AcDb::kForWrite), Acad::eOk);
  EXPECT_EQ(entity->setLayer(ZcDtInitLayer(L"H")), Acad::eHiddenLayer);
  EXPECT_EQ(entity->setLayer(ZcDtInitLayer(L"H"), true, true), Acad::eOk);
  entity->close();
}

TEST_F(Entities, LayerNamesJoinTheWordsThatAreThere) {
  EXPECT_EQ(GetZwtLayer(L"标注", L"管径", L"给水"), L"标注-管径-给水");
  EXPECT_EQ(GetZwtLayer(L"标注", L"管径", L""), L"标注-管径");
  EXPECT_EQ(GetZwtLayer(L"标注", L"管径", L"a/b*c"), L"标注-管径-a_b_c");
}

TEST_F(Entities, TextHeightFollowsTheDimensionScale) {
  struct Row {
    double scale;
    double height;
  };
  for (const Row& row :
       {Row{0, 350}, Row{1, 350}, Row{100, 350}, Row{50, 175}, Row{150, 525}, Row{-2, 350}}) {
    zwt::DrawingData data;
    data.dimensionScale = row.scale;
    Drawing drawing(std::move(data));
    EXPECT_EQ(ZcDbGetWtTextHeight(&drawing), row.height) << row.scale;
  }
}

}  // namespace
