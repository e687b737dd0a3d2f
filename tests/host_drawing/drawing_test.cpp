#include "host/drawing/drawing.h"

#include <cmath>

#include <gmock/gmock.h>

#include "host/drawing/connections.h"

namespace {

using testing::ElementsAre;
using zwt::Drawing;
using zwt::DrawingChange;

AcDbObjectId AddRiser(Drawing& drawing, double z) {
  return drawing.AddPipe({0, 0, z}, {0, 0, z + 3000}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}});
}

class Listener : public zwt::DrawingObserver {
 public:
  explicit Listener(Drawing& drawing) : drawing_(drawing) { drawing_.AddObserver(this); }
  ~Listener() override { drawing_.RemoveObserver(this); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  void OnChange(const DrawingChange& change) override { changes.push_back(change); }
  void OnRefusal(const CString& message) override { refusals.push_back(message); }

  std::vector<DrawingChange> changes;
  std::vector<CString> refusals;

 private:
  Drawing& drawing_;
};

TEST(Drawing, HoldsThePipesThatWereAdded) {
  Drawing drawing;
  const AcDbObjectId id = AddRiser(drawing, 0);
  ASSERT_FALSE(id.isNull());
  const std::int32_t pipe = drawing.IndexOf(id);
  EXPECT_THAT(drawing.Pipes(), ElementsAre(pipe));
  EXPECT_EQ(drawing.PipeOf(pipe).end, (AcGePoint3d{0, 0, 3000}));
  EXPECT_EQ(drawing.PipeOf(pipe).length, 3000);
  CString text;
  EXPECT_TRUE(drawing.GetField(pipe, L"ELS_TYPE", text));
  EXPECT_EQ(text, L"立管");
  EXPECT_EQ(drawing.FindHandle(drawing.Entity(pipe).handle), pipe);
}

TEST(Drawing, GivesAnEmptyTextAndNoForAMissingKey) {
  Drawing drawing;
  const std::int32_t pipe = drawing.IndexOf(AddRiser(drawing, 0));
  CString text = L"before";
  EXPECT_FALSE(drawing.GetField(pipe, L"Kh", text));
  EXPECT_EQ(text, L"");
  EXPECT_EQ(drawing.Diameter(pipe), 0);
  EXPECT_EQ(drawing.Kind(pipe), 0);
}

TEST(Drawing, SetsFieldsInPlaceAndAddsMissingOnes) {
  Drawing drawing;
  const std::int32_t pipe = drawing.IndexOf(AddRiser(drawing, 0));
  EXPECT_EQ(drawing.SetFields(pipe, {{L"ELS_TYPE", L"支管"}, {L"Kh", L"2.8"}}), Acad::eOk);
  EXPECT_EQ(drawing.Fields(pipe),
            (zwt::FieldList{{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"支管"}, {L"Kh", L"2.8"}}));
}

TEST(Drawing, RefusesATextOver255BytesAndChangesNothing) {
  Drawing drawing;
  const std::int32_t pipe = drawing.IndexOf(AddRiser(drawing, 0));
  const Listener listener(drawing);
  EXPECT_EQ(drawing.SetFields(pipe, {{L"Kh", CString(255, L'x')}}), Acad::eOk);
  // 86 characters of three bytes are 258 bytes.
  EXPECT_EQ(drawing.SetFields(pipe, {{L"Kh", CString(86, L'水')}}), Acad::eExtendedDataTooLarge);
  EXPECT_THAT(listener.refusals, ElementsAre(L"属性 Kh 的文字超过 255 字节，未写入。"));
  CString text;
  drawing.GetField(pipe, L"Kh", text);
  EXPECT_EQ(text, CString(255, L'x'));
}

TEST(Drawing, RefusesMoreThan16KilobytesOfAttributes) {
  Drawing drawing;
  const std::int32_t pipe = drawing.IndexOf(AddRiser(drawing, 0));
  Acad::ErrorStatus status = Acad::eOk;
  int count = 0;
  while (status == Acad::eOk && count < 1000) {
    status = drawing.SetFields(pipe, {{L"K" + std::to_wstring(count), CString(250, L'x')}});
    if (status == Acad::eOk) ++count;
  }
  EXPECT_EQ(status, Acad::eExtendedDataTooLarge);
  EXPECT_EQ(count, 63);
  EXPECT_LE(zwt::MeasureExtendedData(drawing.Entity(pipe).tags).total, zwt::kMostExtendedData);
}

TEST(Drawing, ATextOfSeveralLinesStaysOneValue) {
  Drawing drawing;
  const std::int32_t pipe = drawing.IndexOf(AddRiser(drawing, 0));
  const CString tricky = L" one\r\ntwo\\U+0041 \\M+5D6D0 ";
  EXPECT_EQ(drawing.SetFields(pipe, {{L"Note", tricky}}), Acad::eOk);
  CString text;
  drawing.GetField(pipe, L"Note", text);
  EXPECT_EQ(text, tricky);
  EXPECT_EQ(zwt::ListFields(drawing.Entity(pipe).tags.substr(drawing.PipeOf(pipe).dataOffset)).size(), 3U);
}

TEST(Drawing, WritesADiameterOnlyWhereTheNumberIsAnother) {
  Drawing drawing;
  const AcDbObjectId id = drawing.AddPipe({0, 0, 0}, {1, 0, 0}, {{L"Diameter", L"100.0"}});
  const std::int32_t pipe = drawing.IndexOf(id);
  const Listener listener(drawing);
  EXPECT_EQ(drawing.SetDiameter(pipe, 100), Acad::eOk);
  CString text;
  drawing.GetField(pipe, L"Diameter", text);
  EXPECT_EQ(text, L"100.0");
  EXPECT_EQ(drawing.SetDiameter(pipe, 65), Acad::eOk);
  drawing.GetField(pipe, L"Diameter", text);
  EXPECT_EQ(text, L"65");
  ASSERT_EQ(listener.changes.size(), 2U);
  EXPECT_EQ(listener.changes[0].kind, DrawingChange::Kind::SetDiameter);
  EXPECT_EQ(listener.changes[0].diameter, 100);
  EXPECT_EQ(listener.changes[1].diameter, 65);
}

TEST(Drawing, TellsWhatWasAddedErasedAndSet) {
  Drawing drawing;
  const Listener listener(drawing);
  const AcDbObjectId layer = drawing.InitLayer(L"标注-管径-给水");
  zwt::TextValues values;
  values.content = L"DN65";
  values.layer = layer;
  const AcDbObjectId text = drawing.AddText(values);
  const AcDbObjectId pipe = AddRiser(drawing, 0);
  drawing.SetFields(drawing.IndexOf(pipe), {{L"Kh", L"2.5"}});
  drawing.Erase(drawing.IndexOf(text));
  ASSERT_EQ(listener.changes.size(), 4U);
  const DrawingChange& added = listener.changes[0];
  EXPECT_EQ(added.kind, DrawingChange::Kind::Add);
  EXPECT_EQ(added.id, text);
  EXPECT_EQ(added.type, L"TEXT");
  EXPECT_EQ(added.layer, L"标注-管径-给水");
  EXPECT_TRUE(added.hasText);
  EXPECT_EQ(added.text, L"DN65");
  EXPECT_EQ(listener.changes[1].type, L"LINE");
  EXPECT_FALSE(listener.changes[1].hasText);
  EXPECT_EQ(listener.changes[2].kind, DrawingChange::Kind::SetField);
  EXPECT_EQ(listener.changes[2].key, L"Kh");
  EXPECT_EQ(listener.changes[2].text, L"2.5");
  EXPECT_EQ(listener.changes[3].kind, DrawingChange::Kind::Erase);
  EXPECT_EQ(listener.changes[3].handle, added.handle);
}

TEST(Drawing, RefusesPlacesThatNoFileCanHold) {
  Drawing drawing;
  EXPECT_TRUE(drawing.AddPipe({0, 0, 0}, {1e16, 0, 0}).isNull());
  EXPECT_TRUE(drawing.AddPipe({0, 0, 0}, {std::nan(""), 0, 0}).isNull());
  zwt::TextValues values;
  values.height = 0;
  EXPECT_TRUE(drawing.AddText(values).isNull());
  EXPECT_EQ(drawing.EntityCount(), 0);
  EXPECT_FALSE(drawing.IsModified());
}

TEST(Drawing, MovedEndIsFoundByWhatConnectsAndByUndo) {
  Drawing drawing;
  const std::int32_t lower = drawing.IndexOf(AddRiser(drawing, 0));
  const std::int32_t upper = drawing.IndexOf(AddRiser(drawing, 3005));
  EXPECT_TRUE(drawing.GetConnections().ConnectedTo(lower).empty());
  EXPECT_EQ(drawing.MoveLineEnd(upper, true, {0, 0, 3000}), Acad::eOk);
  EXPECT_EQ(drawing.PipeOf(upper).start, (AcGePoint3d{0, 0, 3000}));
  EXPECT_EQ(drawing.PipeOf(upper).end, (AcGePoint3d{0, 0, 6005}));
  EXPECT_EQ(drawing.PipeOf(upper).length, 3005);
  EXPECT_THAT(drawing.GetConnections().ConnectedTo(lower), ElementsAre(upper));
  drawing.Undo();
  EXPECT_EQ(drawing.PipeOf(upper).start, (AcGePoint3d{0, 0, 3005}));
  EXPECT_TRUE(drawing.GetConnections().ConnectedTo(lower).empty());
}

TEST(Drawing, MovesNoEndOfWhatIsNoStraightPipe) {
  Drawing drawing;
  const std::int32_t line = drawing.IndexOf(drawing.AddLine({0, 0, 0}, {1, 0, 0}));
  const std::int32_t pipe = drawing.IndexOf(AddRiser(drawing, 0));
  EXPECT_EQ(drawing.MoveLineEnd(line, true, {}), Acad::eNotThatKindOfClass);
  EXPECT_EQ(drawing.MoveLineEnd(pipe, true, {1e16, 0, 0}), Acad::eInvalidInput);
  drawing.Erase(pipe);
  EXPECT_EQ(drawing.MoveLineEnd(pipe, true, {}), Acad::eWasErased);
}

TEST(Drawing, LayersAndStylesAreFoundWithoutRegardToCase) {
  Drawing drawing;
  const AcDbObjectId layer = drawing.InitLayer(L"Pipe");
  EXPECT_EQ(drawing.InitLayer(L"PIPE"), layer);
  EXPECT_EQ(drawing.InitTextStyle(L"wt_text"), drawing.InitTextStyle(L"WT_TEXT"));
  EXPECT_NE(drawing.InitTextStyle(L"WT_TEXT"), drawing.InitTextStyle(L"Standard"));
  EXPECT_EQ(drawing.LayerIndex(drawing.InitTextStyle(L"WT_TEXT")), -1);
}

TEST(Drawing, AnIdentifierOfAnotherDrawingNamesNothing) {
  Drawing one;
  Drawing other;
  const AcDbObjectId id = AddRiser(one, 0);
  AddRiser(other, 0);
  EXPECT_EQ(other.IndexOf(id), -1);
  EXPECT_EQ(other.IndexOf({}), -1);
}

}  // namespace
