// Broken drawings give an error with a line number or a drawing, never half of one, never a crash.

#include <random>

#include <gtest/gtest.h>

#include "host/drawing/connections.h"
#include "host/dxf/dxf_file.h"
#include "host/dxf/new_drawing_file.h"
#include "host_dxf/drawing_texts.h"

namespace {

using drawing_texts::Pipe;

/// A small drawing with something of everything that the reader looks into.
std::string SmallDrawing() {
  std::string bytes = zwt::NewDrawingFile();
  const std::string entities =
      Pipe("50", "1000\nWtSystem\n1000\n给水\n1002\n{\n1000\nx\n1002\n}\n") +
      "  0\nLWPOLYLINE\n  5\n51\n 70\n1\n 10\n0\n 20\n0\n 42\n1\n 10\n5\n "
      "20\n0\n1001\nZWT_PIPE\n1000\nKind\n" +
      "  0\nPOLYLINE\n  5\n52\n 66\n1\n1001\nZWT_PIPE\n  0\nVERTEX\n 10\n0\n 20\n0\n  0\nSEQEND\n" +
      "  0\nTEXT\n  5\n53\n  1\n\\U+7ED9\n1001\nZWT_ATTACH\n1005\n50\n";
  const std::size_t place = bytes.find("ENTITIES\n") + 9;
  return bytes.insert(place, entities);
}

/// Uses everything of a drawing that reading alone leaves for later.
void Use(zwt::Drawing& drawing) {
  for (const std::int32_t pipe : drawing.Pipes()) {
    drawing.Fields(pipe);
    drawing.GetConnections().ConnectedTo(pipe);
    drawing.AttachedTo(pipe);
    drawing.SetDiameter(pipe, 50);
    drawing.SetLayer(pipe, drawing.InitLayer(L"N"), false);
  }
  if (drawing.EntityCount() > 0) drawing.Erase(drawing.EntityCount() - 1);
  const auto again = zwt::ParseDrawing(zwt::DrawingBytes(drawing));
  EXPECT_EQ(again->Pipes().size(), drawing.Pipes().size());
}

/// True: a drawing; false: an error with a line.
bool Reads(const std::string& bytes) {
  try {
    const auto drawing = zwt::ParseDrawing(bytes);
    EXPECT_EQ(zwt::DrawingBytes(*drawing), bytes);
    Use(*drawing);
    return true;
  } catch (const zwt::DrawingError& error) {
    EXPECT_GT(error.Line(), 0) << error.what();
    return false;
  }
}

TEST(BrokenDrawings, EveryCutGivesADrawingOrAnErrorWithALine) {
  const std::string bytes = SmallDrawing();
  ASSERT_TRUE(Reads(bytes));
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    // Whole is what ends behind the EOF, with or without the line end.
    const bool whole = length == bytes.size() - 1;
    ASSERT_EQ(Reads(bytes.substr(0, length)), whole) << length;
  }
}

TEST(BrokenDrawings, NoChangedByteCrashesOrLosesAnything) {
  const std::string bytes = SmallDrawing();
  std::mt19937 random(99);
  const std::string odd = "\n\r 0-9xZ\xFF\x80{}\\";
  int read = 0;
  for (int round = 0; round < 3000; ++round) {
    std::string changed = bytes;
    for (auto n = random() % 3 + 1; n > 0; --n)
      changed[random() % changed.size()] = odd[random() % odd.size()];
    try {
      const auto drawing = zwt::ParseDrawing(changed);
      ASSERT_EQ(zwt::DrawingBytes(*drawing), changed);
      Use(*drawing);
      ++read;
    } catch (const zwt::DrawingError&) {
      continue;
    }
  }
  EXPECT_GT(read, 300) << "most drawings are too broken to test anything";
}

TEST(BrokenDrawings, OneBrokenByteInAChineseTextLeavesAllElseReadable) {
  std::string bytes =
      drawing_texts::Header("AC1015", drawing_texts::CodePage("ANSI_936")) +
      drawing_texts::Entities(Pipe("1", "1000\nWtSystem\n1000\n\xB8\xF8\xCB\xAE\n1000\nKh\n1000\n2.5\n"));
  const std::size_t text = bytes.find("\xB8\xF8");
  for (std::size_t i = text; i < text + 4; ++i) {
    for (const char broken : {'\xFF', '\x80', 'a', '\\', '\0'}) {
      std::string changed = bytes;
      changed[i] = broken;
      const auto drawing = zwt::ParseDrawing(changed);
      CString value;
      EXPECT_TRUE(drawing->GetField(0, L"Kh", value));
      EXPECT_EQ(value, L"2.5");
      EXPECT_EQ(zwt::DrawingBytes(*drawing), changed);
    }
  }
}

}  // namespace
